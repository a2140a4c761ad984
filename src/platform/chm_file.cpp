// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/chm_file.h"

#include "platform/chm_directory.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <QtEndian>

#include <algorithm>

#include <chm_lib.h>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 MaximalFile = 64 << 20;
constexpr quint64 MaximalObject = 16 << 20;
constexpr int MaximalContentsDepth = 16;

/// The numbers under which `#SYSTEM` keeps what this reader asks for.
enum SystemCode : quint16 { ContentsFile = 0, DefaultTopic = 2, Title = 3 };

QString upToNul(const QByteArray& bytes) {
    return QString::fromUtf8(bytes.constData());
}

QString attribute(const QString& tag, const QString& name) {
    static const QString pattern = uR"re(\b%1\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s"'>]+)))re"_s;
    const QRegularExpression expression(pattern.arg(name),
                                        QRegularExpression::CaseInsensitiveOption);
    const auto match = expression.match(tag);
    return match.captured(1) + match.captured(2) + match.captured(3);
}

QString withoutEntities(const QString& text) {
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}

} // namespace

QList<ChmTopic> readSitemap(const QString& html) {
    static const QRegularExpression tags(uR"(<(/?)(ul|object|param)\b([^>]*)>)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    QList<ChmTopic> topics;
    ChmTopic topic;
    int depth = -1;
    for (auto match = tags.globalMatch(html); match.hasNext();) {
        const auto tag = match.next();
        const bool closes = !tag.captured(1).isEmpty();
        const QString element = tag.captured(2).toLower();
        if (element == u"ul"_s) {
            depth = std::clamp(depth + (closes ? -1 : 1), -1, MaximalContentsDepth);
        } else if (element == u"param"_s) {
            const QString name = attribute(tag.captured(3), u"name"_s).toLower();
            const QString value = withoutEntities(attribute(tag.captured(3), u"value"_s));
            if (name == u"name"_s)
                topic.name = value;
            else if (name == u"local"_s)
                topic.page = value;
        } else if (closes) {
            topic.depth = std::max(depth, 0);
            if (!topic.name.isEmpty())
                topics.append(topic);
            topic = {};
        }
    }
    return topics;
}

std::unique_ptr<ChmFile> ChmFile::open(const QString& path) {
    QByteArray bytes;
    if (!endSilently([&] { bytes = readWhole(path, MaximalFile); }))
        return nullptr;
    const auto entries = readChmDirectory(bytes);
    if (!entries.has_value())
        return nullptr;
    chmFile* handle = chm_open(QFile::encodeName(path).constData());
    if (handle == nullptr)
        return nullptr;
    auto file = std::unique_ptr<ChmFile>(new ChmFile(handle));
    for (const ChmEntry& entry : *entries) {
        // What begins with "#" or "$" keeps the help file's own books; folders end with "/".
        const bool ofTheAuthor = entry.path.startsWith('/') && !entry.path.endsWith('/') &&
                                 !entry.path.startsWith("/#") && !entry.path.startsWith("/$") &&
                                 !entry.path.startsWith("/_#");
        if (ofTheAuthor)
            file->m_files.append(QString::fromUtf8(entry.path.sliced(1)));
    }
    file->readSystem();
    return file;
}

ChmFile::ChmFile(chmFile* handle)
    : m_handle(handle) {}

ChmFile::~ChmFile() {
    chm_close(m_handle);
}

QByteArray ChmFile::read(const QString& file) const {
    chmUnitInfo unit{};
    const QByteArray name = "/" + file.toUtf8();
    if (name.endsWith('/') || name.size() > CHM_MAX_PATHLEN ||
        chm_resolve_object(m_handle, name.constData(), &unit) != CHM_RESOLVE_SUCCESS ||
        unit.length > MaximalObject)
        return {};
    QByteArray content(static_cast<qsizetype>(unit.length), Qt::Uninitialized);
    const auto got =
        chm_retrieve_object(m_handle, &unit, reinterpret_cast<unsigned char*>(content.data()), 0,
                            static_cast<LONGINT64>(unit.length));
    return got == static_cast<LONGINT64>(unit.length) ? content : QByteArray();
}

void ChmFile::readSystem() {
    const QByteArray system = read(u"#SYSTEM"_s);
    qsizetype place = 4;
    while (place + 4 <= system.size()) {
        const auto code = qFromLittleEndian<quint16>(system.constData() + place);
        const auto length = qFromLittleEndian<quint16>(system.constData() + place + 2);
        const QString text = upToNul(system.mid(place + 4, length));
        if (code == ContentsFile)
            m_contentsFile = text;
        else if (code == DefaultTopic)
            m_defaultTopic = text;
        else if (code == Title)
            m_title = text;
        place += 4 + length;
    }
}

QList<ChmTopic> ChmFile::contents() const {
    return readSitemap(QString::fromUtf8(read(m_contentsFile)));
}

} // namespace orvalis
