// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace orvalis {

/// A folder and a name joined with the platform's separator. Separators ahead of the name are
/// dropped, so that a name with its leading separator can be given as it stands.
QString joinPath(const QString& folder, const QString& name);

/// The name of the first file, in the order of names, that the path finds, or "". In the path's
/// last part "*" stands for any characters and "?" for one; "*.*" finds every name. A folder is
/// never found, nor is anything by an empty path.
QString Dir(const QString& path);

/// Whether Dir() finds the path. A path with wildcards "exists" when anything matches.
bool FileExists(const QString& path);

/// Writes a file whole: to a temporary beside it that is flushed and renamed over it, so that a
/// crash or a full disk leaves the old file or the new one. Where the folder refuses a new file but
/// the file itself may be written, it is written directly.
/// \throws RuntimeError PathNotFound (no such folder), PermissionDenied (the system refuses),
/// PathFileAccessError (a folder stands there, the disk is full, or anything else).
void saveWhole(const QString& path, QByteArrayView bytes);

/// Writes a file twice, the second bytes being those that stay. They are on the disk before the
/// first take the old file's place: a disk without room for them keeps the old file. A refusal of
/// the first bytes is passed over.
/// \throws RuntimeError as saveWhole() does, where the second bytes are refused.
void saveWholeTwice(const QString& path, QByteArrayView first, QByteArrayView second);

/// The largest file that is read unless a caller says otherwise, in bytes.
constexpr qint64 LargestFile = qint64{256} * 1024 * 1024;

/// The bytes of a plain file.
/// \throws RuntimeError FileNotFound, PathNotFound (no such folder), PermissionDenied,
/// PathFileAccessError (no plain file, larger than \a maximum, or unreadable for another reason).
QByteArray readWhole(const QString& path, qint64 maximum = LargestFile);

/// Keeps a file aside that could not be read as what it should be, under its name with
/// ".unreadable" added (or ".unreadable2" and on, where other bytes are kept there already), for
/// the moment before it is overwritten. Nothing is done where the same bytes are kept already.
/// \returns false when the file exists and could not be kept.
bool keepUnreadable(const QString& path);

} // namespace orvalis
