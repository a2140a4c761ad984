// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/logon_entry.h"
#include "platform/mail.h"
#include "platform/screen.h"
#include "platform/shell.h"
#include "platform/sound_player.h"
#include "runtime/failure.h"

#include <QMap>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace orvalis::test {

/// Opens and starts nothing, and keeps what it was asked for. \c whileOpening runs in the place of
/// what opens.
class RecordingShell final : public Shell {
public:
    QStringList opened;
    QStringList started;
    bool opens = true;
    QStringList programs; // those that start() finds
    std::function<void()> whileOpening;

    bool open(const QString& documentOrAddress) override {
        opened << documentOrAddress;
        if (whileOpening)
            whileOpening();
        return opens;
    }
    void start(const QString& program) override {
        started << program;
        if (program.isEmpty())
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        if (!programs.contains(program))
            throw RuntimeError(ErrorNumber::FileNotFound);
    }
};

/// Sends nothing, and keeps what it was asked for. With a \c failure it fails so.
class RecordingMail final : public Mail {
public:
    std::vector<MailMessage> composed;
    std::optional<RuntimeError> failure;

    void compose(const MailMessage& message) override {
        composed.push_back(message);
        if (failure)
            throw RuntimeError(*failure);
    }
};

/// Plays nothing, and keeps what it was asked for. \c whilePlaying runs in the place of the sound.
class RecordingSoundPlayer final : public SoundPlayer {
public:
    QStringList played;
    std::function<void()> whilePlaying;

    void playAndWait(const QString& path) override {
        played << path;
        if (whilePlaying)
            whilePlaying();
    }
};

/// The logon entries by name; a desktop that refuses them leaves them as they are.
class RecordingLogonEntry final : public LogonEntry {
public:
    QMap<QString, QString> entries;
    bool permitted = true;
    /// Runs before an entry is set or removed.
    std::function<void()> atCall;

    void set(const QString& name, const QString& programPath) override {
        if (atCall)
            atCall();
        if (permitted)
            entries[name] = programPath;
    }
    void remove(const QString& name) override {
        if (atCall)
            atCall();
        if (permitted)
            entries.remove(name);
    }
};

/// A screen of any size.
class FakeScreen final : public Screen {
public:
    explicit FakeScreen(QSize size = QSize(1024, 768))
        : screenSize(size) {}

    QSize screenSize;
    QMargins panels;

    QSizeF size() const override { return screenSize; }
    QRect workArea() const override {
        return QRect(QPoint(0, 0), screenSize).marginsRemoved(panels);
    }
};

} // namespace orvalis::test
