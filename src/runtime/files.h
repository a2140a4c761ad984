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

/// The largest file that is read unless a caller says otherwise, in bytes.
constexpr qint64 LargestFile = qint64{256} * 1024 * 1024;

/// The bytes of a plain file.
/// \throws RuntimeError FileNotFound, PathNotFound (no such folder), PermissionDenied,
/// PathFileAccessError (no plain file, larger than \a maximum, or unreadable for another reason).
QByteArray readWhole(const QString& path, qint64 maximum = LargestFile);

} // namespace orvalis
