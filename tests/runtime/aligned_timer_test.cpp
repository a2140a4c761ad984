// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/aligned_timer.h"

#include "support/fake_clock.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <random>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

/// Waits in simulated time: run() moves the clock on by the wait and by a delay, and expires.
class SimulatedShot final : public SingleShot {
public:
    explicit SimulatedShot(FakeClock& clock)
        : m_clock(clock) {}

    void start(int milliseconds, std::function<void()> expired) override {
        m_wait = milliseconds;
        m_expired = std::move(expired);
    }
    void stop() override { m_expired = nullptr; }

    bool waits() const { return static_cast<bool>(m_expired); }
    int wait() const { return m_wait; }

    void run(int delay = 0) {
        m_clock.advanceMilliseconds(m_wait + delay);
        expire();
    }
    void expire() { std::exchange(m_expired, nullptr)(); }

private:
    FakeClock& m_clock;
    int m_wait = 0;
    std::function<void()> m_expired;
};

/// A timer, its clock and the moments at which it ticked.
struct Simulation {
    explicit Simulation(const QDateTime& start, int interval = 1000)
        : clock(start) {
        auto made = std::make_unique<SimulatedShot>(clock);
        shot = made.get();
        timer = std::make_unique<AlignedTimer>(clock, std::move(made), nullptr, interval);
        QObject::connect(timer.get(), &AlignedTimer::tick, timer.get(),
                         [this] { ticks << clock.now(); });
    }

    FakeClock clock;
    SimulatedShot* shot;
    std::unique_ptr<AlignedTimer> timer;
    QList<QDateTime> ticks;
};

QDateTime at(int hour, int minute, int second, int millisecond) {
    return QDateTime(QDate(2026, 3, 14), QTime(hour, minute, second, millisecond));
}

} // namespace

class AlignedTimerTest : public QObject {
    Q_OBJECT
private slots:
    void eachTickAimsAtTheFirstTenthOfTheNextSecond_data();
    void eachTickAimsAtTheFirstTenthOfTheNextSecond();
    void aDayOfLateTicksSkipsNoSecond();
    void anEarlyTimerTellsNoSecondTwice();
    void afterTheClockWasSetTheNextTickIsRightAgain_data();
    void afterTheClockWasSetTheNextTickIsRightAgain();
    void aHandlerThatHoldsTheThreadIsFollowedByTheTickItDelayed();
    void theNextTickIsUnderWayBeforeOneIsTold();
    void aStoppedTimerTellsNothing();
    void aHandlerMayStopTheTimer();
    void aHandlerMayDeleteTheTimer();
    void halfSecondsAreAlignedToo();
    void realTicksFallIntoTheFirstTenthOfTheirSeconds();
};

void AlignedTimerTest::eachTickAimsAtTheFirstTenthOfTheNextSecond_data() {
    QTest::addColumn<int>("millisecond");
    for (const int millisecond : {0, 1, 29, 30, 31, 99, 100, 500, 969, 970, 971, 998, 999})
        QTest::addRow("%d", millisecond) << millisecond;
}

void AlignedTimerTest::eachTickAimsAtTheFirstTenthOfTheNextSecond() {
    QFETCH(int, millisecond);
    Simulation simulation(at(10, 24, 36, millisecond));
    simulation.timer->start();
    simulation.shot->run();
    QCOMPARE(simulation.ticks.size(), 1);
    QCOMPARE(simulation.ticks[0].time().second(), 37);
    QVERIFY(simulation.ticks[0].time().msec() < 100);
}

void AlignedTimerTest::aDayOfLateTicksSkipsNoSecond() {
    constexpr int SecondsOfADay = 24 * 60 * 60;
    constexpr int Latest = 940; // milliseconds: any second's tick still comes within its second
    std::mt19937 random(1);
    std::uniform_int_distribution<int> delay(-25, Latest);
    Simulation simulation(at(0, 0, 0, 0));
    simulation.timer->start();
    qint64 second = simulation.clock.now().toSecsSinceEpoch();
    for (int i = 0; i < SecondsOfADay; ++i) {
        simulation.shot->run(delay(random));
        QCOMPARE(simulation.ticks.size(), 1);
        QCOMPARE(simulation.ticks.takeFirst().toSecsSinceEpoch(), ++second);
    }
}

void AlignedTimerTest::anEarlyTimerTellsNoSecondTwice() {
    Simulation simulation(at(10, 24, 36, 0));
    simulation.timer->start();
    simulation.shot->run(-400); // in the middle of the second that it started in
    QVERIFY(simulation.ticks.isEmpty());
    QVERIFY(simulation.shot->waits());
    simulation.shot->run();
    QCOMPARE(simulation.ticks.size(), 1);
    QCOMPARE(simulation.ticks[0].time().second(), 37);
}

void AlignedTimerTest::afterTheClockWasSetTheNextTickIsRightAgain_data() {
    QTest::addColumn<QDateTime>("moment");
    QTest::newRow("an hour on") << at(11, 24, 36, 654);
    QTest::newRow("an hour back") << at(9, 24, 36, 654);
    QTest::newRow("a minute back") << at(10, 23, 36, 654);
    QTest::newRow("after a night's sleep") << at(10, 24, 36, 5).addDays(1);
}

void AlignedTimerTest::afterTheClockWasSetTheNextTickIsRightAgain() {
    QFETCH(QDateTime, moment);
    Simulation simulation(at(10, 24, 36, 0));
    simulation.timer->start();
    simulation.clock.set(moment);
    simulation.shot->expire();
    simulation.ticks.clear();
    simulation.shot->run();
    QCOMPARE(simulation.ticks.size(), 1);
    QCOMPARE(simulation.ticks[0].toSecsSinceEpoch(), moment.toSecsSinceEpoch() + 1);
    QVERIFY(simulation.ticks[0].time().msec() < 100);
}

void AlignedTimerTest::aHandlerThatHoldsTheThreadIsFollowedByTheTickItDelayed() {
    Simulation simulation(at(10, 24, 36, 0));
    bool plays = true;
    QObject::connect(simulation.timer.get(), &AlignedTimer::tick, simulation.timer.get(), [&] {
        if (std::exchange(plays, false))
            simulation.clock.advanceMilliseconds(1300); // as long as a sound
    });
    simulation.timer->start();
    simulation.shot->run();
    QCOMPARE(simulation.clock.now(), at(10, 24, 38, 330));
    simulation.shot->expire(); // it ran out while the thread was held
    simulation.shot->run();
    QCOMPARE(simulation.ticks.size(), 3);
    QCOMPARE(simulation.ticks[0].time().second(), 37);
    QCOMPARE(simulation.ticks[1].time().second(), 38);
    QCOMPARE(simulation.ticks[2].time().second(), 39);
}

void AlignedTimerTest::theNextTickIsUnderWayBeforeOneIsTold() {
    Simulation simulation(at(10, 24, 36, 0));
    bool waits = false;
    QObject::connect(simulation.timer.get(), &AlignedTimer::tick, simulation.timer.get(),
                     [&] { waits = simulation.shot->waits(); });
    simulation.timer->start();
    simulation.shot->run();
    QVERIFY(waits);
}

void AlignedTimerTest::aStoppedTimerTellsNothing() {
    Simulation simulation(at(10, 24, 36, 0));
    QVERIFY(!simulation.timer->isActive());
    QVERIFY(!simulation.shot->waits());
    simulation.timer->start();
    QVERIFY(simulation.timer->isActive());
    simulation.timer->stop();
    QVERIFY(!simulation.timer->isActive());
    QVERIFY(!simulation.shot->waits());
}

void AlignedTimerTest::aHandlerMayStopTheTimer() {
    Simulation simulation(at(10, 24, 36, 0));
    QObject::connect(simulation.timer.get(), &AlignedTimer::tick, simulation.timer.get(),
                     [&] { simulation.timer->stop(); });
    simulation.timer->start();
    simulation.shot->run();
    QCOMPARE(simulation.ticks.size(), 1);
    QVERIFY(!simulation.shot->waits());
}

void AlignedTimerTest::aHandlerMayDeleteTheTimer() {
    SystemClock clock;
    auto* timer = new AlignedTimer(clock, nullptr, 100);
    bool told = false;
    QObject::connect(timer, &AlignedTimer::tick, this, [&] {
        told = true;
        delete timer;
    });
    timer->start();
    QTRY_VERIFY(told);
}

void AlignedTimerTest::halfSecondsAreAlignedToo() {
    Simulation simulation(at(10, 24, 36, 400), 500);
    simulation.timer->start();
    for (int i = 0; i < 3; ++i)
        simulation.shot->run(200);
    QCOMPARE(simulation.ticks[0], at(10, 24, 36, 730));
    QCOMPARE(simulation.ticks[1], at(10, 24, 37, 230));
    QCOMPARE(simulation.ticks[2], at(10, 24, 37, 730));
}

void AlignedTimerTest::realTicksFallIntoTheFirstTenthOfTheirSeconds() {
    SystemClock clock;
    AlignedTimer timer(clock);
    QList<QDateTime> ticks;
    connect(&timer, &AlignedTimer::tick, this, [&] { ticks << clock.now(); });
    timer.start();
    QTRY_VERIFY_WITH_TIMEOUT(ticks.size() == 3, 10000);
    timer.stop();
    for (qsizetype i = 1; i < ticks.size(); ++i)
        QCOMPARE(ticks[i].toSecsSinceEpoch(), ticks[i - 1].toSecsSinceEpoch() + 1);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AlignedTimerTest)
#include "aligned_timer_test.moc"
