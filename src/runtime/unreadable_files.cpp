// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/unreadable_files.h"

#include "runtime/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

constexpr int MostKeptAside = 99;
constexpr qint64 ComparedAtOnce = 65536;

QSet<QString>& noted() {
    static QSet<QString> paths;
    return paths;
}

/// One name for all spellings of a path.
QString keyOf(const QString& path) {
    const QFileInfo file(path);
    const QString real = file.canonicalFilePath();
    return real.isEmpty() ? file.absoluteFilePath() : real;
}

bool sameBytes(const QString& a, const QString& b) {
    QFile first(a);
    QFile second(b);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) ||
        first.size() != second.size())
        return false;
    while (!first.atEnd()) {
        const QByteArray bytes = first.read(ComparedAtOnce);
        if (bytes.isEmpty() || bytes != second.read(ComparedAtOnce))
            return false;
    }
    return true;
}

} // namespace

void noteUnreadable(const QString& path) {
    if (QFileInfo(path).isFile())
        noted().insert(keyOf(path));
}

void noteReadable(const QString& path) {
    noted().remove(keyOf(path));
}

bool isNotedUnreadable(const QString& path) {
    return noted().contains(keyOf(path));
}

bool keepUnreadable(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile())
        return !file.exists();
    for (int count = 1; count <= MostKeptAside; ++count) {
        const QString aside =
            path + u".unreadable"_s + (count == 1 ? QString() : QString::number(count));
        if (sameBytes(path, aside))
            return true;
        if (QFileInfo::exists(aside))
            continue;
        // Bytes that may not even be read can still be moved aside as they are.
        return (!file.isSymLink() && linkFile(path, aside)) || copyWhole(path, aside) ||
               QFile::rename(path, aside);
    }
    return false;
}

} // namespace orvalis
