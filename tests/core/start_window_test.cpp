// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/label.h"
#include "controls/ms_flex_grid.h"
#include "core/main_window.h"
#include "core/start_window.h"
#include "runtime/aligned_timer.h"
#include "runtime/failure.h"
#include "support/role_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QWindow>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

class RecordingTick final : public Tick {
public:
    void run(TickOwner& owner) override {
        owner.showClock(u"10 : 24 : 36"_s);
        ++runs;
        if (fails)
            throw RuntimeError(ErrorNumber::FileNotFound);
    }
    int runs = 0;
    bool fails = false;
};

} // namespace

class StartWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void aSecondStartWarnsAndEndsWithoutTouchingAnything();
    void withNoSettingsTheMainWindowShowsAndNoKeyIsCreated();
    void withStartSetTheProgramGoesToTheTrayAndNoWindowFlashesUp();
    void aStartOfAnythingButOneShowsTheMainWindow_data();
    void aStartOfAnythingButOneShowsTheMainWindow();
    void aFailureOfTheStartIsPassedOver();
    void noPanelAndNoOptionsAreLoadedAtStart();
    void itOwnsTheControlsOfTheTickUnseen();
    void itCountsAsShownYetIsSeenNowhere();
    void theTickRunsOnceASecondFromTheStart();
    void aFailingTickEndsSilently();
    void theTickStopsAndGoesOnAsTheTrayAsks();
    void disarmingClearsItsAlarm();

private:
    void makeWindows(bool previousInstance);
    frmStart& start() { return static_cast<frmStart&>(m_test->program.windows.get<StartWindow>()); }

    std::unique_ptr<TestProgram> m_test;
    QStringList m_log;
};

void StartWindowTest::init() {
    m_log.clear();
    m_test = std::make_unique<TestProgram>();
    m_test->program.makeTrayOwner = [this](ChromeWindow& window) {
        return std::make_unique<RecordingTrayOwner>(window, m_log);
    };
    makeWindows(false);
}

void StartWindowTest::makeWindows(bool previousInstance) {
    Program& program = m_test->program;
    program.windows.registerMaker<StartWindow>([&program, previousInstance] {
        return std::make_unique<frmStart>(program, previousInstance);
    });
    program.windows.registerMaker<MainWindow>([&program, this] {
        return std::make_unique<LoggedPanel<MainWindow>>(program, ChromeKind::Main, m_log);
    });
    program.windows.registerMaker<ReminderPanel>(
        [&program, this] { return std::make_unique<FakeReminderPanel>(program, m_log); });
}

void StartWindowTest::aSecondStartWarnsAndEndsWithoutTouchingAnything() {
    makeWindows(true);
    m_test->boxes.expect(u"orvalis is already running!"_s, 48, Answer::Ok, u"Orvalis Warning"_s);
    QVERIFY(endsTheProgram([this] { start(); }));
    QVERIFY(m_test->program.windows.loaded<MainWindow>() == nullptr);
    QCOMPARE(m_log, QStringList());
    QCOMPARE(m_test->store.keyCount(), 0);
}

void StartWindowTest::withNoSettingsTheMainWindowShowsAndNoKeyIsCreated() {
    start().Show();
    QVERIFY(m_test->program.windows.get<MainWindow>().form().isVisible());
    QVERIFY(start().timer23Enabled());
    QCOMPARE(m_test->store.keyCount(), 0);
    QVERIFY(!m_log.contains(u"TrayBuild"_s));
}

void StartWindowTest::withStartSetTheProgramGoesToTheTrayAndNoWindowFlashesUp() {
    m_test->setSetting(u"Reg"_s, u"Start"_s, u"1"_s);
    start().Show();
    QVERIFY(m_log.contains(u"TrayBuild"_s));
    QVERIFY(!m_log.contains(u"show frmnotes"_s));
    QVERIFY(!m_test->program.windows.get<MainWindow>().form().isVisible());
    QVERIFY(!start().timer23Enabled());
}

void StartWindowTest::aStartOfAnythingButOneShowsTheMainWindow_data() {
    QTest::addColumn<QString>("value");
    QTest::newRow("0") << u"0"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("word") << u"yes"_s;
    QTest::newRow("2") << u"2"_s;
}

void StartWindowTest::aStartOfAnythingButOneShowsTheMainWindow() {
    QFETCH(QString, value);
    m_test->setSetting(u"Reg"_s, u"Start"_s, value);
    start().Show();
    QVERIFY(m_test->program.windows.get<MainWindow>().form().isVisible());
}

void StartWindowTest::aFailureOfTheStartIsPassedOver() {
    m_test->program.windows.registerMaker<MainWindow>([]() -> std::unique_ptr<MainWindow> {
        throw RuntimeError(ErrorNumber::ObjectVariableNotSet);
    });
    start().Show();
    QVERIFY(start().timer23Enabled());
    QVERIFY(!programHasEnded());
    QCOMPARE(m_test->boxes.asked.size(), 0);
}

void StartWindowTest::itOwnsTheControlsOfTheTickUnseen() {
    start().Show();
    for (const QString& name : {u"MS2"_s, u"Image1"_s, u"lblVreme"_s, u"lblAlarm"_s}) {
        const auto* control = start().findChild<QWidget*>(name);
        QVERIFY2(control != nullptr, qPrintable(name));
        QVERIFY2(!control->isVisible(), qPrintable(name));
    }
    QCOMPARE(start().findChild<QWidget*>(u"MS2"_s), &start().MS2());
}

void StartWindowTest::noPanelAndNoOptionsAreLoadedAtStart() {
    const bool builtIn = false;
    m_test->program.windows.registerMaker<OptionsWindow>(
        [&] { return std::make_unique<FakeOptions>(m_log, builtIn); });
    start().Show();
    QVERIFY(m_test->program.windows.loaded<ReminderPanel>() == nullptr);
    QVERIFY(m_test->program.windows.loaded<OptionsWindow>() == nullptr);
}

void StartWindowTest::itCountsAsShownYetIsSeenNowhere() {
    start().Show();
    QVERIFY(start().isVisible());
    QVERIFY(start().windowHandle() == nullptr || !start().windowHandle()->isVisible());
    QCOMPARE(start().x(), -104);
    start().resize(150, 120);
    start().move(10, 10);
    start().resize(160, 130);
    QCOMPARE(start().x(), -104);
}

void StartWindowTest::theTickRunsOnceASecondFromTheStart() {
    RecordingTick tick;
    m_test->program.tick = &tick;
    auto* timer = start().findChild<AlignedTimer*>(u"Timer23"_s);
    QVERIFY(timer != nullptr);
    QVERIFY(timer->isActive());
    emit timer->tick();
    emit timer->tick();
    QCOMPARE(tick.runs, 2);
    QCOMPARE(start().findChild<Label*>(u"lblVreme"_s)->Caption(), u"10 : 24 : 36"_s);
}

void StartWindowTest::aFailingTickEndsSilently() {
    RecordingTick tick;
    tick.fails = true;
    m_test->program.tick = &tick;
    emit start().findChild<AlignedTimer*>(u"Timer23"_s)->tick();
    QCOMPARE(tick.runs, 1);
    QCOMPARE(m_test->boxes.asked.size(), 0);
}

void StartWindowTest::theTickStopsAndGoesOnAsTheTrayAsks() {
    start().setTimer23Enabled(false);
    QVERIFY(!start().timer23Enabled());
    start().setTimer23Enabled(true);
    QVERIFY(start().timer23Enabled());
}

void StartWindowTest::disarmingClearsItsAlarm() {
    m_test->program.state.alarmArmed = true;
    start().findChild<Label*>(u"lblAlarm"_s)->setCaption(u"07:30:00"_s);
    start().disarm();
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(start().findChild<Label*>(u"lblAlarm"_s)->Caption(), QString());
}

ORVALIS_TEST_MAIN_WITH(Application, StartWindowTest)
#include "start_window_test.moc"
