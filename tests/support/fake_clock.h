// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/clock.h"

#include <functional>

namespace orvalis::test {

/// A clock that stands still until it is told to move; it can be told so whenever it is asked.
class FakeClock final : public Clock {
public:
    explicit FakeClock(const QDateTime& start = QDateTime(QDate(2026, 3, 14), QTime(10, 24, 36)))
        : m_now(start) {}

    std::function<void()> whenAsked; ///< ahead of each answer

    QDateTime now() const override {
        if (whenAsked)
            whenAsked();
        return m_now;
    }
    void set(const QDateTime& moment) { m_now = moment; }
    void advanceMilliseconds(qint64 milliseconds) { m_now = m_now.addMSecs(milliseconds); }
    void advanceSeconds(qint64 seconds) { m_now = m_now.addSecs(seconds); }

private:
    QDateTime m_now;
};

} // namespace orvalis::test
