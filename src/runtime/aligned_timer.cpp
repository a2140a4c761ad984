// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/aligned_timer.h"

#include "runtime/clock.h"

#include <QTimer>

namespace orvalis {

namespace {

/// How far behind the full second a tick aims, in milliseconds: far enough that a timer that runs
/// out a little early still meets the new second, near enough to stay in its first tenth.
constexpr int BehindTheSecond = 30;

class PreciseSingleShot final : public SingleShot {
public:
    PreciseSingleShot() {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            const auto expired = std::move(m_expired); // the call may start the next wait
            expired();
        });
    }

    void start(int milliseconds, std::function<void()> expired) override {
        m_expired = std::move(expired);
        m_timer.start(milliseconds);
    }
    void stop() override { m_timer.stop(); }

private:
    QTimer m_timer;
    std::function<void()> m_expired;
};

} // namespace

AlignedTimer::AlignedTimer(const Clock& clock, QObject* parent, int interval)
    : AlignedTimer(clock, std::make_unique<PreciseSingleShot>(), parent, interval) {}

AlignedTimer::AlignedTimer(const Clock& clock, std::unique_ptr<SingleShot> shot, QObject* parent,
                           int interval)
    : QObject(parent)
    , m_clock(clock)
    , m_shot(std::move(shot))
    , m_interval(interval) {
    Q_ASSERT(interval > BehindTheSecond && 1000 % interval == 0);
}

AlignedTimer::~AlignedTimer() = default;

void AlignedTimer::start() {
    m_active = true;
    arm(m_clock.now());
}

void AlignedTimer::stop() {
    m_active = false;
    m_shot->stop();
}

void AlignedTimer::arm(const QDateTime& now) {
    const int past = now.time().msec() % m_interval;
    const int wait = m_interval - past + BehindTheSecond;
    m_target = now.addMSecs(wait);
    m_shot->start(wait, [this] { expire(); });
}

void AlignedTimer::expire() {
    const QDateTime now = m_clock.now();
    const qint64 early = now.msecsTo(m_target);
    // Run out before its second began: waits for the rest, lest one second be told twice. A larger
    // difference is a clock that was set back, and tells nothing about the timer.
    if (early > BehindTheSecond && early <= m_interval + BehindTheSecond) {
        m_shot->start(static_cast<int>(early), [this] { expire(); });
        return;
    }
    arm(now);
    emit tick();
}

} // namespace orvalis
