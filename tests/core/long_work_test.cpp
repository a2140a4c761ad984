// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/long_work.h"

#include "controls/progress_bar.h"
#include "support/fake_clock.h"
#include "support/test_main.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTimer>

#include <memory>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// Counts how often a widget is painted.
class Paintings final : public QObject {
public:
    explicit Paintings(QWidget& widget)
        : m_widget(widget) {
        widget.installEventFilter(this);
    }

    int count() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        m_count += watched == &m_widget && event->type() == QEvent::Paint;
        return false;
    }

private:
    QWidget& m_widget;
    int m_count = 0;
};

} // namespace

class LongWorkTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void workThatIsSoonDoneShowsNoBar();
    void workThatLastsShowsABarUntilItsEnd();
    void theBarShowsTheShareOfTheWhole();
    void theBarIsPaintedAgainAndAgain();
    void nothingIsPaintedTwiceInAShortTime();
    void aClockThatIsSetBackStopsNothing();
    void aWindowWithoutABarWaitsToo();
    void aWindowThatIsNotOnTheScreenWaitsToo();
    void theWindowIsPaintedAtTheBeginning();
    void thePointerIsTheHourglassUntilTheEnd();
    void noKeyClickOrTimerReachesAnythingMeanwhile();

private:
    std::unique_ptr<QWidget> m_window;
    ProgressBar* m_bar = nullptr;
    QLineEdit* m_field = nullptr;
    FakeClock m_clock;
};

void LongWorkTest::init() {
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 100);
    m_bar = new ProgressBar(u"PB1"_s, m_window.get());
    m_bar->setGeometry(10, 80, 100, 10);
    m_bar->hide();
    m_field = new QLineEdit(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void LongWorkTest::workThatIsSoonDoneShowsNoBar() {
    const Paintings paintings(*m_bar);
    {
        LongWork work(*m_window, m_bar, m_clock);
        const rtf::Progress progress = work.part(1);
        for (int step = 1; step <= 24; ++step) {
            m_clock.advanceMilliseconds(10);
            progress(step / 24.0);
            QVERIFY(m_bar->isHidden());
        }
    }
    QCOMPARE(paintings.count(), 0);
}

void LongWorkTest::workThatLastsShowsABarUntilItsEnd() {
    {
        LongWork work(*m_window, m_bar, m_clock);
        const rtf::Progress progress = work.part(1);
        m_clock.advanceMilliseconds(250);
        progress(0.5);
        QVERIFY(m_bar->isVisible());
    }
    QVERIFY(m_bar->isHidden());
    QCOMPARE(m_bar->Value(), 0.0F);
}

void LongWorkTest::theBarShowsTheShareOfTheWhole() {
    LongWork work(*m_window, m_bar, m_clock);
    rtf::Progress progress = work.part(0.4);
    m_clock.advanceMilliseconds(300);
    progress(0.5);
    QCOMPARE(m_bar->Value(), 20.0F);
    progress = work.part(1);
    m_clock.advanceMilliseconds(300);
    progress(0.5);
    QCOMPARE(m_bar->Value(), 70.0F);
    m_clock.advanceMilliseconds(300);
    progress(1);
    QCOMPARE(m_bar->Value(), 100.0F);
}

void LongWorkTest::theBarIsPaintedAgainAndAgain() {
    LongWork work(*m_window, m_bar, m_clock);
    const rtf::Progress progress = work.part(1);
    m_clock.advanceMilliseconds(250);
    const Paintings paintings(*m_bar);
    for (int step = 1; step <= 10; ++step) {
        m_clock.advanceMilliseconds(80);
        progress(step / 10.0);
        QCOMPARE(paintings.count(), step);
    }
}

void LongWorkTest::nothingIsPaintedTwiceInAShortTime() {
    LongWork work(*m_window, m_bar, m_clock);
    const rtf::Progress progress = work.part(1);
    m_clock.advanceMilliseconds(250);
    progress(0.1);
    const Paintings paintings(*m_bar);
    for (int step = 0; step < 1000; ++step)
        progress(0.1 + step / 2000.0);
    m_clock.advanceMilliseconds(79);
    progress(0.9);
    QCOMPARE(paintings.count(), 0);
}

void LongWorkTest::aClockThatIsSetBackStopsNothing() {
    LongWork work(*m_window, m_bar, m_clock);
    const rtf::Progress progress = work.part(1);
    m_clock.advanceSeconds(-3600);
    progress(0.1);
    const Paintings paintings(*m_bar);
    m_clock.advanceMilliseconds(80);
    progress(0.2);
    QCOMPARE(paintings.count(), 1);
}

void LongWorkTest::aWindowWithoutABarWaitsToo() {
    LongWork work(*m_window, nullptr, m_clock);
    const rtf::Progress progress = work.part(1);
    m_clock.advanceSeconds(10);
    progress(0.5);
    QVERIFY(m_bar->isHidden());
}

void LongWorkTest::aWindowThatIsNotOnTheScreenWaitsToo() {
    m_window->hide();
    LongWork work(*m_window, m_bar, m_clock);
    const rtf::Progress progress = work.part(1);
    m_clock.advanceSeconds(10);
    progress(0.5);
    QVERIFY(!m_bar->isVisible());
}

void LongWorkTest::theWindowIsPaintedAtTheBeginning() {
    const Paintings paintings(*m_window);
    const LongWork work(*m_window, m_bar, m_clock);
    QCOMPARE(paintings.count(), 1);
}

void LongWorkTest::thePointerIsTheHourglassUntilTheEnd() {
    {
        const LongWork work(*m_window, m_bar, m_clock);
        QVERIFY(QApplication::overrideCursor() != nullptr);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void LongWorkTest::noKeyClickOrTimerReachesAnythingMeanwhile() {
    bool ticked = false;
    QTimer::singleShot(0, this, [&ticked] { ticked = true; });
    {
        LongWork work(*m_window, m_bar, m_clock);
        const rtf::Progress progress = work.part(1);
        const auto post = [this](QEvent* event) { QApplication::postEvent(m_field, event); };
        post(new QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, u"a"_s));
        post(new QMouseEvent(QEvent::MouseButtonPress, QPointF(2, 2), QPointF(2, 2), Qt::LeftButton,
                             Qt::LeftButton, {}));
        for (int step = 1; step <= 20; ++step) {
            m_clock.advanceMilliseconds(100);
            progress(step / 20.0);
        }
        QVERIFY(m_bar->isVisible());
        QCOMPARE(m_field->text(), QString());
        QVERIFY(!ticked);
    }
    QTRY_COMPARE(m_field->text(), u"a"_s);
    QTRY_VERIFY(ticked);
}

ORVALIS_TEST_MAIN_WITH(QApplication, LongWorkTest)
#include "long_work_test.moc"
