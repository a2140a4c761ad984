// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/files.h"

#include "runtime/failure.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity FileNameCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity FileNameCase = Qt::CaseSensitive;
#endif

bool isWildcard(QChar c) {
    return c == u'*' || c == u'?';
}

bool hasWildcard(QStringView name) {
    return std::any_of(name.begin(), name.end(), isWildcard);
}

/// Walks both texts once and falls back to the last "*" on a mismatch, so that no pattern takes
/// more than the product of the lengths.
bool matches(QStringView name, QStringView pattern) {
    qsizetype n = 0;
    qsizetype p = 0;
    qsizetype star = -1;
    qsizetype resumed = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            resumed = n;
        } else if (p < pattern.size() &&
                   (pattern[p] == u'?' ||
                    name.sliced(n, 1).compare(pattern.sliced(p, 1), FileNameCase) == 0)) {
            ++n;
            ++p;
        } else if (star >= 0) {
            p = star + 1;
            n = ++resumed;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

[[noreturn]] void fail(ErrorNumber number) {
    throw RuntimeError(number);
}

/// The failure of a file that could not be opened: refused, or anything else.
ErrorNumber refusal(bool permitted) {
    return permitted ? ErrorNumber::PathFileAccessError : ErrorNumber::PermissionDenied;
}

} // namespace

QString joinPath(const QString& folder, const QString& name) {
    qsizetype start = 0;
    while (start < name.size() && (name[start] == u'/' || name[start] == u'\\'))
        ++start;
    QString joined = folder;
    if (!joined.endsWith(u'/') && !joined.endsWith(QDir::separator()))
        joined += QDir::separator();
    return joined + name.mid(start);
}

QString Dir(const QString& path) {
    const QFileInfo info(path);
    const QString pattern = info.fileName();
    if (!hasWildcard(pattern))
        return info.isFile() ? pattern : QString();
    const QString wanted = pattern == u"*.*"_s ? u"*"_s : pattern;
    QString first;
    QDirIterator entries(info.path(), QDir::Files);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        if (matches(name, wanted) && (first.isEmpty() || name < first))
            first = name;
    }
    return first;
}

bool FileExists(const QString& path) {
    return !Dir(path).isEmpty();
}

namespace {

/// Takes the memory that the file asks for, never what it might; some files tell no size, and one
/// may grow meanwhile. \returns one byte more than the maximum where there are more.
QByteArray bytesOf(QFile& file, qint64 maximum) {
    constexpr qint64 SmallestPiece = 4096;
    QByteArray bytes;
    QByteArray piece;
    do {
        const qint64 known = file.size() - bytes.size() + 1;
        piece = file.read(std::min(std::max(known, SmallestPiece), maximum + 1 - bytes.size()));
        bytes += piece;
    } while (!piece.isEmpty() && bytes.size() <= maximum);
    return bytes;
}

} // namespace

QByteArray readWhole(const QString& path, qint64 maximum) {
    const QFileInfo source(path);
    if (path.isEmpty())
        fail(ErrorNumber::FileNotFound);
    if (!source.exists()) {
        const QFileInfo folder(source.path());
        if (!folder.isDir())
            fail(ErrorNumber::PathNotFound);
        fail(folder.isExecutable() ? ErrorNumber::FileNotFound : ErrorNumber::PermissionDenied);
    }
    if (!source.isFile() || source.size() > maximum)
        fail(ErrorNumber::PathFileAccessError);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(refusal(source.isReadable()));
    const QByteArray bytes = bytesOf(file, maximum);
    if (file.error() != QFileDevice::NoError || bytes.size() > maximum)
        fail(ErrorNumber::PathFileAccessError);
    return bytes;
}

} // namespace orvalis
