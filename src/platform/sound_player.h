// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace orvalis {

/// Plays sound files.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Plays a wave file and returns when it has ended, no later than its length says. With no
    /// sound device, no such file or one that is no wave file it returns at once, silently.
    virtual void playAndWait(const QString& path) = 0;
};

/// Plays on the default sound device. What talks to the device is a library of its own that is
/// loaded at the first sound: it brings some twenty others with it, a third of what a start loads.
class DeviceSoundPlayer final : public SoundPlayer {
public:
    explicit DeviceSoundPlayer(const QStringList& libraryFolders = defaultFolders());

    /// Beside the executable, and where an installation puts it.
    static QStringList defaultFolders();

    void playAndWait(const QString& path) override;

private:
    QStringList m_libraryFolders;
};

} // namespace orvalis
