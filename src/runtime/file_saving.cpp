// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/file_saving.h"

#include "runtime/failure.h"
#include "runtime/unreadable_files.h"
#include "runtime/whole_file.h"

#include <QFileInfo>

namespace orvalis {

namespace {

bool isTaken(const QString& path) {
    const QFileInfo place(path);
    return place.exists() || place.isSymLink();
}

} // namespace

void saveWhole(const QString& path, QByteArrayView bytes) {
    const bool aside = isNotedUnreadable(path);
    WholeFile file(path, bytes,
                   aside ? WholeFile::OldFile::KeptAside : WholeFile::OldFile::Replaced);
    // Only now that nothing but a rename is left to do: the old file may not leave its name for one
    // that finds no room.
    if (aside && !keepUnreadable(path))
        throw RuntimeError(ErrorNumber::PathFileAccessError);
    if (!file.replace())
        throw RuntimeError(ErrorNumber::PathFileAccessError);
    noteReadable(path);
}

bool saveNew(const QString& path, QByteArrayView bytes) {
    if (isTaken(path))
        return false;
    WholeFile file(path, bytes);
    if (file.takeFree())
        return true;
    if (isTaken(path))
        return false;
    throw RuntimeError(ErrorNumber::PathFileAccessError);
}

} // namespace orvalis
