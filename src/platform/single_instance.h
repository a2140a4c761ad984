// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

namespace orvalis {

/// Holds the place of the one running copy for a user and a data folder. The place is a lock file
/// that outlives no process: one left by a copy that was killed is taken over.
class SingleInstance {
public:
    explicit SingleInstance(const QString& dataFolder, const QString& lockFolder = defaultFolder());

    /// The user's run-time folder.
    static QString defaultFolder();

    /// Whether another running copy held the place when this object was made.
    bool PrevInstance() const { return m_held; }

    QString lockPath() const { return m_lock.fileName(); }

private:
    QLockFile m_lock;
    bool m_held;
};

} // namespace orvalis
