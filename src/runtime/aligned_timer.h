// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>

#include <functional>
#include <memory>

namespace orvalis {

class Clock;

/// A timer that runs out once. What an AlignedTimer waits with; a test puts its own in the place.
class SingleShot {
public:
    virtual ~SingleShot() = default;
    /// Calls \a expired once, \a milliseconds from now; an earlier call still waiting is dropped.
    virtual void start(int milliseconds, std::function<void()> expired) = 0;
    virtual void stop() = 0;
};

/// A repeating timer that follows the wall clock: each tick aims at the first tenth of the next
/// second (or other interval), however late the last one came, so that no second is skipped while
/// the thread is free, and the first tick after a sleep or a setting of the clock is right again.
class AlignedTimer : public QObject {
    Q_OBJECT
public:
    /// \a interval in milliseconds divides 1000.
    explicit AlignedTimer(const Clock& clock, QObject* parent = nullptr, int interval = 1000);
    AlignedTimer(const Clock& clock, std::unique_ptr<SingleShot> shot, QObject* parent = nullptr,
                 int interval = 1000);
    ~AlignedTimer() override;

    void start();
    void stop();
    bool isActive() const { return m_active; }

signals:
    /// The next tick is already under way when this is told, so that ticks go on while a handler
    /// shows a dialog, and one that held the thread is followed by the tick it delayed.
    void tick();

private:
    void arm(const QDateTime& now);
    void expire();

    const Clock& m_clock;
    std::unique_ptr<SingleShot> m_shot;
    int m_interval;
    bool m_active = false;
    QDateTime m_target;
};

} // namespace orvalis
