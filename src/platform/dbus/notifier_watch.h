// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace orvalis {

/// Knows whether the session bus has a StatusNotifier watcher with a host, which is a tray, and
/// hears of its coming and going once it was asked. The bus is asked in passing: nothing waits for
/// it.
class NotifierWatch final : public QObject {
    Q_OBJECT
public:
    bool hasHost() const { return m_hasHost; }
    /// Whether hasHost() knows: an answer may come a moment later than the question.
    bool isSettled() const { return m_questions == 0; }

public slots:
    /// Asks anew, and listens from now on.
    void ask();

signals:
    /// The tray came or went, or it is known at last whether there is one.
    void changed();

private:
    void listen();
    void takeAnswer(bool hostIsRegistered);

    bool m_listens = false;
    int m_questions = 0; ///< on their way to the bus
    bool m_hasHost = false;
};

} // namespace orvalis
