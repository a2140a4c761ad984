// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace orvalis {

/// The kinds of tray that a desktop may have.
enum class TrayKind { StatusNotifier, XEmbed };

/// Knows which trays the desktop has, and hears of their coming and going while it is awake.
class TrayWatch : public QObject {
    Q_OBJECT
public:
    virtual bool has(TrayKind kind) = 0;
    /// Whether has() knows. Each waking asks anew, and the answer may come a moment later.
    virtual bool isSettled() const { return true; }
    /// Asleep it wakes nobody up; `changed` may then be late.
    virtual void setAwake(bool awake) = 0;

signals:
    /// A tray came or went, or it is known at last which there are.
    void changed();
};

/// Looks at the session bus for a StatusNotifier watcher with a host, and at the X server for the
/// owner of the tray selection. The bus is asked in passing: nothing waits for it.
class DesktopTrayWatch final : public TrayWatch {
    Q_OBJECT
public:
    DesktopTrayWatch();

    bool has(TrayKind kind) override;
    bool isSettled() const override { return m_questions == 0; }
    void setAwake(bool awake) override;

private slots:
    void askBus();

private:
    void listenToBus();
    void takeAnswer(bool hostIsRegistered);

    QTimer m_lookForXEmbed;
    bool m_listens = false;
    int m_questions = 0; ///< on their way to the bus
    bool m_hasHost = false;
    bool m_hadXEmbed = false;
};

} // namespace orvalis
