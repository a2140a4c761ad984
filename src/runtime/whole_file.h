// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QFile>
#include <QString>

namespace orvalis {

/// A file that is being made ready in a folder, and goes unless it takes a name there.
class TemporaryFile {
public:
    /// \throws RuntimeError PermissionDenied, PathFileAccessError
    explicit TemporaryFile(const QString& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void setPermissions(QFile::Permissions permissions) { m_file.setPermissions(permissions); }
    bool write(QByteArrayView bytes);
    /// Nothing more is written. \returns whether all of it lies on the disk.
    bool complete();

    /// Takes the place of what has the name, in one step.
    bool renameOver(const QString& path);
    /// Takes the name in one step where it is free, or not at all.
    bool takeFree(const QString& path);

private:
    QFile m_file;
};

/// A file's new bytes, complete on the disk beside it, which take its name or go.
class WholeFile {
public:
    /// What becomes of a file that has the name.
    enum class OldFile {
        Replaced,  ///< one that may not be written refuses, and its rights are handed on
        KeptAside, ///< it may stay what it is, and rights that nobody can read with are not handed
                   ///< on
    };

    /// \throws RuntimeError PathNotFound (no such folder), PermissionDenied (the system refuses),
    /// PathFileAccessError (a folder stands there, the disk is full, or anything else).
    WholeFile(const QString& path, QByteArrayView bytes, OldFile oldFile = OldFile::Replaced);

    /// Symbolic links stay what they are; what they lead to is replaced.
    bool replace() { return m_temporary.renameOver(m_target); }
    bool takeFree() { return m_temporary.takeFree(m_target); }

private:
    QString m_target;
    TemporaryFile m_temporary;
};

/// Copies a file whole to a name that is free.
/// \returns whether the copy is there now.
bool copyWhole(const QString& path, const QString& copy);

/// Gives a file a second name where that one is free and the file system knows such links: the
/// bytes need no room on a full disk, and the first name can then be given to others in one step.
bool linkFile(const QString& path, const QString& second);

/// Whether a killed run has left temporaries of this user in a folder.
bool hasLeftovers(const QString& folder);

/// Removes the user's own temporaries that a killed run left in a folder. To be called where no
/// other run of the program writes there.
void removeLeftovers(const QString& folder);

} // namespace orvalis
