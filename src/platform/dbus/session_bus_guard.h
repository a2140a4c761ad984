// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace orvalis {

/// Watches over work in which the toolkit may wait for the session bus, as it does without a bound
/// of ours, for as long as the guard lives. A bus that answered once may have stopped since: where
/// the work takes long the guard asks it, and if it does not answer ends the toolkit's connections,
/// so that whoever waits for one of them fails and goes on.
class SessionBusGuard {
public:
    /// \param patience how long the work may take before the bus is asked, and the bus to answer.
    explicit SessionBusGuard(std::chrono::milliseconds patience = std::chrono::milliseconds(500));
    ~SessionBusGuard();
    SessionBusGuard(const SessionBusGuard&) = delete;
    SessionBusGuard& operator=(const SessionBusGuard&) = delete;

private:
    void watch(std::chrono::milliseconds patience);

    std::mutex m_mutex;
    std::condition_variable m_ending;
    bool m_ends = false;
    std::thread m_watch;
};

} // namespace orvalis
