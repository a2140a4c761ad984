// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace orvalis {

/// Writes a file whole: to a temporary beside it that is complete on the disk before it is renamed
/// over it, so that a crash, a full disk or a pulled plug leaves the old file or the new one. What
/// cannot be made ready beside it is not written. A file that was noted as unreadable
/// (runtime/unreadable_files.h) is kept aside first.
/// \throws RuntimeError PathNotFound (no such folder), PermissionDenied (the system refuses),
/// PathFileAccessError (a folder stands there, the disk is full, or anything else).
void saveWhole(const QString& path, QByteArrayView bytes);

/// Writes a new file in the same way, and never over another.
/// \returns whether it did; false means that the name is taken.
/// \throws RuntimeError as saveWhole() does.
bool saveNew(const QString& path, QByteArrayView bytes);

} // namespace orvalis
