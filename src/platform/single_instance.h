// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

namespace orvalis {

/// Holds the place of the one running copy for a user and a data folder. The place is a lock file
/// that outlives no process: one left by a copy that was killed is taken over. It lies in the
/// user's run-time folder or, where that one takes no file, in the data folder.
class SingleInstance {
public:
    explicit SingleInstance(const QString& dataFolder, const QString& lockFolder = defaultFolder());

    /// The user's run-time folder.
    static QString defaultFolder();

    /// Whether another running copy held the place when this object was made.
    bool PrevInstance() const { return m_held; }

    /// Whether nobody can tell if another copy runs, because no lock file can be written.
    bool isUncertain() const { return m_place == nullptr && !m_held; }

    /// The file that holds the place, or "".
    QString lockPath() const { return m_place == nullptr ? QString() : m_place->fileName(); }

private:
    QLockFile m_lock;
    QLockFile m_lockBesideData;
    QLockFile* m_place = nullptr;
    bool m_held = false;
};

} // namespace orvalis
