// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/dropped_files.h"

#include "controls/control_marks.h"
#include "controls/document_reading.h"
#include "rtf/pictures/picture_format.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <QDir>
#include <QMimeData>
#include <QTextCursor>
#include <QUrl>

namespace orvalis {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 LargestPicture = qint64{64} * 1024 * 1024; // bytes

/// The paths, or none where an address leads elsewhere.
QStringList pathsOf(const QMimeData& data) {
    QStringList paths;
    const auto urls = data.urls();
    for (const QUrl& url : urls) {
        if (!url.isLocalFile() || !url.host().isEmpty())
            return {};
        paths << QDir::toNativeSeparators(url.toLocalFile());
    }
    return paths;
}

bool insertPictureFile(const QString& path, QTextCursor& cursor, rtf::PictureBounds& bounds) {
    QByteArray bytes;
    endSilently([&] { bytes = readWhole(path, LargestPicture); });
    return !bytes.isEmpty() && rtf::insertPicture(cursor, bytes, readOptions().metafiles, bounds);
}

} // namespace

bool takeFiles(const QMimeData& data, QTextCursor& selection, const QTextCharFormat& plain) {
    const QStringList paths = pathsOf(data);
    if (paths.isEmpty())
        return false;
    selection.beginEditBlock();
    selection.removeSelectedText();
    rtf::PictureBounds pictures;
    for (const QString& path : paths) {
        if (&path != &paths.first())
            insertPlain(selection, u"\r\n", plain);
        if (!insertPictureFile(path, selection, pictures))
            insertPlain(selection, path, plain);
    }
    selection.endEditBlock();
    return true;
}

} // namespace orvalis
