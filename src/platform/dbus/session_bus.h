// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>

namespace orvalis {

/// The path of the socket on which the user's session bus listens, one that begins with NUL for an
/// abstract one; empty where the environment names none.
QByteArray sessionBusSocket();

/// A question to the user's session bus that is on its way while the program starts. The toolkit
/// asks that bus at its own start and waits as long as it takes: one that accepts connections and
/// never answers would keep the first window away for ever. So the toolkit is shown a bus only once
/// it has answered.
class SessionBusQuestion {
public:
    /// Asks, and waits for nothing.
    SessionBusQuestion();
    ~SessionBusQuestion();
    SessionBusQuestion(const SessionBusQuestion&) = delete;
    SessionBusQuestion& operator=(const SessionBusQuestion&) = delete;

    /// Waits for the answer, no longer than told from now. \returns false where the bus is there,
    /// took the question and did not answer it; what cannot be asked (no bus, a bus of another
    /// machine) counts as answered.
    bool isAnswered(std::chrono::milliseconds patience);

private:
    void connectTo(const QByteArray& name);

    int m_socket = -1;
};

/// Hides the session bus from the toolkit for this run unless it answers; programs that we start
/// are still told of it. To be called ahead of the application object.
void hideSilentSessionBus(SessionBusQuestion& question);

} // namespace orvalis
