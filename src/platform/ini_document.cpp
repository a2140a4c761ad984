// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/ini_document.h"

#include "platform/ini_value.h"

#include <QStringList>

namespace orvalis {

namespace {

bool same(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Where the "=" behind a name stands, or -1. One inside a quoted name does not count.
qsizetype separatorOf(QStringView line) {
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == u'"' && (quoted || i == 0))
            quoted = !quoted;
        else if (c == u'\\' && quoted)
            ++i;
        else if (c == u'=' && !quoted)
            return i;
    }
    return -1;
}

} // namespace

std::optional<IniDocument> IniDocument::parse(QByteArrayView bytes) {
    if (!QUtf8StringView(bytes).isValidUtf8())
        return std::nullopt;
    QString text = QString::fromUtf8(bytes);
    while (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    IniDocument document;
    QList<QStringView> lines = QStringView(text).split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast(); // the end of the last line starts no other
    document.m_lines.reserve(lines.size());
    for (const QStringView line : lines)
        document.m_lines << read(line.endsWith(u'\r') ? line.chopped(1) : line);
    return document;
}

IniDocument::Line IniDocument::read(QStringView text) {
    Line line{Line::Kind::Other, text.toString(), {}, {}};
    const QStringView content = text.trimmed();
    if (content.isEmpty() || content.startsWith(u';') || content.startsWith(u'#'))
        return line;
    if (content.startsWith(u'[')) {
        if (!content.endsWith(u']'))
            return line;
        if (const auto name = readIniName(content.sliced(1, content.size() - 2).trimmed())) {
            line.kind = Line::Kind::Section;
            line.name = *name;
        }
        return line;
    }
    const qsizetype separator = separatorOf(content);
    if (separator < 0)
        return line;
    if (const auto name = readIniName(content.first(separator).trimmed())) {
        line.kind = Line::Kind::Value;
        line.name = *name;
        line.value = content.sliced(separator + 1).trimmed().toString();
    }
    return line;
}

QByteArray IniDocument::bytes() const {
    QByteArray bytes;
    for (const Line& line : m_lines)
        bytes += line.text.toUtf8() + '\n';
    return bytes;
}

QStringList IniDocument::sections() const {
    QStringList names;
    for (const Line& line : m_lines)
        if (line.kind == Line::Kind::Section)
            names << line.name;
        else if (line.kind == Line::Kind::Value && names.isEmpty())
            names << QString();
    return names;
}

bool IniDocument::hasSection(QStringView section) const {
    return findSection(section) >= 0;
}

qsizetype IniDocument::findSection(QStringView section) const {
    for (qsizetype i = 0; i < m_lines.size(); ++i)
        if (m_lines[i].kind == Line::Kind::Section && same(m_lines[i].name, section))
            return i;
    return -1;
}

qsizetype IniDocument::find(QStringView section, QStringView name) const {
    bool inside = section.isEmpty();
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        if (line.kind == Line::Kind::Section)
            inside = same(line.name, section);
        else if (inside && line.kind == Line::Kind::Value && same(line.name, name))
            return i;
    }
    return -1;
}

qsizetype IniDocument::endOfSection(QStringView section) const {
    const qsizetype header = findSection(section);
    qsizetype end = header + 1;
    for (qsizetype i = header + 1; i < m_lines.size(); ++i) {
        if (m_lines[i].kind == Line::Kind::Section)
            break;
        if (!m_lines[i].text.trimmed().isEmpty())
            end = i + 1;
    }
    return end;
}

std::optional<StoredValue> IniDocument::value(QStringView section, QStringView name) const {
    const qsizetype line = find(section, name);
    return line < 0 ? std::nullopt : readIniValue(m_lines[line].value);
}

void IniDocument::addSection(const QString& section) {
    if (section.isEmpty() || hasSection(section))
        return;
    if (!m_lines.isEmpty() && !m_lines.last().text.trimmed().isEmpty())
        m_lines << Line();
    m_lines << Line{Line::Kind::Section, u'[' + writtenIniName(section) + u']', section, {}};
}

void IniDocument::setValue(const QString& section, const QString& name, const StoredValue& value) {
    const QString written = writtenIniValue(value);
    const Line line{Line::Kind::Value, writtenIniName(name) + u'=' + written, name, written};
    const qsizetype existing = find(section, name);
    if (existing >= 0) {
        m_lines[existing] = line;
        return;
    }
    addSection(section);
    m_lines.insert(endOfSection(section), line);
}

void IniDocument::removeValue(QStringView section, QStringView name) {
    for (qsizetype line = find(section, name); line >= 0; line = find(section, name))
        m_lines.removeAt(line);
}

} // namespace orvalis
