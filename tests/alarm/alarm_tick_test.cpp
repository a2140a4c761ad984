// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_tick.h"
#include "alarm/reminder_scan.h"
#include "controls/label.h"
#include "controls/ms_flex_grid.h"
#include "core/start_window.h"
#include "runtime/aligned_timer.h"
#include "support/role_doubles.h"
#include "support/sticker_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QRandomGenerator>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// A form as the tick knows it: the tray's, which disarms without further ado.
class Owner final : public TickOwner {
public:
    explicit Owner(Program& program)
        : m_program(program) {}
    void showClock(const QString& text) override { clock = text; }
    void disarm() override {
        ++disarmed;
        m_program.state.alarmArmed = false;
    }
    QString clock;
    int disarmed = 0;

private:
    Program& m_program;
};

/// A timer that the test lets run out, later than asked by some jitter.
class JitteryShot final : public SingleShot {
public:
    void start(int milliseconds, std::function<void()> expired) override {
        delay = milliseconds;
        m_expired = std::move(expired);
    }
    void stop() override { m_expired = nullptr; }
    void expire() {
        const auto expired = std::move(m_expired);
        m_expired = nullptr;
        expired();
    }
    int delay = 0;

private:
    std::function<void()> m_expired;
};

} // namespace

class AlarmTickTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void theOwnersLabelShowsTheTimeInTheChosenFormat();
    void theAlarmFiresInItsSecondAndIsOver();
    void theAlarmFiresAtNoOtherSecond();
    void anAlarmThatIsNotArmedDoesNotFire();
    void anAlarmSetForTheCurrentMinuteAfterSecondZeroFiresTheNextDay();
    void aMissedSecondLeavesTheAlarmArmedForTheNextDay();
    void theStickerShowsTheMessageInRedBold();
    void withoutAFileTheDefaultSoundIsOpenedAndStaysTheAlarmsFile();
    void aChosenFileIsOpened();
    void aFileThatDoesNotOpenIsPassedOver();
    void theBuiltInPlayerShowsItsWindowAndNothingElseAndDisarms();
    void theOptionsAreLoadedBySilentReferenceWhenTheAlarmFires();
    void theNextAlarmUsesTheSameSticker();
    void theTextOfTheAlarmStaysAfterItFired();
    void aMissingMessageInTheWindowedTickEndsItAndTheAlarmStaysArmed();
    void aMissingMessageInTheTrayIsAFailure();
    void theWindowedTickDisarmsThroughItsForm();
    void theScanRunsOnlyWhileRemindersArePending();
    void theAlarmFiresWithNoWindowOnTheScreen();
    void theFileOpensBeforeTheStickerIsMade();
    void theNextAlarmReplacesWhatStandsInItsSticker();
    void theAlarmComesBeforeTheReminders();
    void aTickStaysInItsSecondWhateverTheAlarmTakes();
    void theWindowsAlarmDisplayStaysUntilTheNextActivation();
    void theMessageStaysOnTheDiskAndNothingElseIsKept();
    void twentyFourHoursOfJitterySecondsSkipNone();

private:
    void arm(const QTime& time);
    void tickAt(const QTime& time) {
        m_test->clock.set(QDateTime(m_test->clock.date(), time));
        m_tick->run(*m_owner);
    }
    /// A reminder of today, pending.
    void dueReminder(const QTime& time) {
        MSFlexGrid& MS2 = start().MS2();
        MS2.AddItem(reminderKey(QDateTime(m_test->clock.date(), time)));
        MS2.AddItem(u"Call Ann"_s);
        MS2.AddItem(u"behind it"_s);
        MSFlexGrid& MS3 = m_test->program.windows.get<ReminderPanel>().MS3();
        MS3.setRows(3);
        m_test->program.state.RemindPending = true;
        m_log.clear();
    }
    frmStart& start() { return static_cast<frmStart&>(m_test->program.windows.get<StartWindow>()); }

    std::unique_ptr<FakeStickers> m_stickers;
    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<AlarmTick> m_tick;
    std::unique_ptr<Owner> m_owner;
    QStringList m_log;
    bool m_builtIn = false;
};

void AlarmTickTest::init() {
    m_log.clear();
    m_builtIn = false;
    m_test = std::make_unique<TestProgram>();
    m_stickers = std::make_unique<FakeStickers>(m_log);
    Program& program = m_test->program;
    program.stickers = m_stickers.get();
    program.windows.registerMaker<StartWindow>(
        [&program] { return std::make_unique<frmStart>(program, false); });
    program.windows.registerMaker<MainWindow>([&program, this] {
        return std::make_unique<LoggedPanel<MainWindow>>(program, ChromeKind::Main, m_log);
    });
    program.windows.registerMaker<ReminderPanel>(
        [&program, this] { return std::make_unique<FakeReminderPanel>(program, m_log); });
    program.windows.registerMaker<OptionsWindow>(
        [this] { return std::make_unique<FakeOptions>(m_log, m_builtIn); });
    registerLogged<AlarmWindow>(program, u"frmAlarm"_s, m_log);
    m_tick = std::make_unique<AlarmTick>(program);
    m_owner = std::make_unique<Owner>(program);
    program.tick = m_tick.get();
    m_test->folder.write(u"Msg.txt"_s, "Alarm time: 10:30:00\r\nTea");
}

void AlarmTickTest::arm(const QTime& time) {
    m_test->program.state.alarmArmed = true;
    m_test->program.state.alarmTime = time;
    m_test->program.state.alarmTimeText = time.toString(u"hh:mm:ss"_s);
}

void AlarmTickTest::theOwnersLabelShowsTheTimeInTheChosenFormat() {
    m_tick->run(*m_owner);
    QCOMPARE(m_owner->clock, u"10 : 24 : 36"_s);
    m_test->program.state.timeFormatIndex = 5;
    m_tick->run(*m_owner);
    QCOMPARE(m_owner->clock, u"10 : 24"_s);
}

void AlarmTickTest::theAlarmFiresInItsSecondAndIsOver() {
    arm({10, 30});
    tickAt({10, 30, 0, 70});
    QCOMPARE(m_owner->disarmed, 1);
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(m_log, (QStringList{u"load frmOptions"_s, u"new global xn"_s, u"popUp global xn"_s}));
    m_log.clear();
    tickAt({10, 30, 0, 900});
    QCOMPARE(m_log, QStringList());
}

void AlarmTickTest::theAlarmFiresAtNoOtherSecond() {
    arm({10, 30});
    for (const QTime& time : {QTime(10, 29, 59, 999), QTime(10, 30, 1), QTime(22, 30, 0)})
        tickAt(time);
    QVERIFY(m_test->program.state.alarmArmed);
    QCOMPARE(m_log, QStringList());
}

void AlarmTickTest::anAlarmThatIsNotArmedDoesNotFire() {
    arm({10, 30});
    m_test->program.state.alarmArmed = false;
    tickAt({10, 30});
    QCOMPARE(m_log, QStringList());
    QCOMPARE(m_test->shell.opened, QStringList());
}

void AlarmTickTest::anAlarmSetForTheCurrentMinuteAfterSecondZeroFiresTheNextDay() {
    m_test->clock.set(QDateTime(QDate(2026, 3, 14), QTime(10, 30, 5)));
    arm({10, 30});
    for (int second = 0; second < 24 * 3600 - 6; ++second) {
        m_tick->run(*m_owner);
        m_test->clock.advanceSeconds(1);
    }
    QVERIFY(m_test->program.state.alarmArmed);
    QCOMPARE(m_test->clock.now(), QDateTime(QDate(2026, 3, 15), QTime(10, 29, 59)));
    m_test->clock.advanceSeconds(1);
    m_tick->run(*m_owner);
    QVERIFY(!m_test->program.state.alarmArmed);
}

void AlarmTickTest::aMissedSecondLeavesTheAlarmArmedForTheNextDay() {
    arm({10, 30});
    tickAt({10, 29, 59});
    tickAt({10, 30, 1});
    QVERIFY(m_test->program.state.alarmArmed);
    m_test->clock.set(QDateTime(QDate(2026, 3, 15), QTime(10, 30, 0)));
    m_tick->run(*m_owner);
    QVERIFY(!m_test->program.state.alarmArmed);
}

void AlarmTickTest::theStickerShowsTheMessageInRedBold() {
    arm({10, 30});
    tickAt({10, 30});
    RichTextBox& text = m_stickers->made.back()->Text1();
    QCOMPARE(text.Text(), u"Alarm time: 10:30:00\r\nTea"_s);
    text.SetSelStart(0);
    text.SetSelLength(static_cast<int>(text.Text().size()));
    QCOMPARE(text.SelBold(), std::optional(true));
    QCOMPARE(text.SelColor(), std::optional(255U));
}

void AlarmTickTest::withoutAFileTheDefaultSoundIsOpenedAndStaysTheAlarmsFile() {
    const QString wav = m_test->folder.file(u"Alarm.wav"_s);
    arm({10, 30});
    tickAt({10, 30});
    QCOMPARE(m_test->shell.opened, QStringList{wav});
    QCOMPARE(m_test->program.state.alarmMediaFile, wav);
    QCOMPARE(m_test->sound.played, QStringList());
}

void AlarmTickTest::aChosenFileIsOpened() {
    m_test->program.state.alarmMediaFile = u"/music/a song; rm -rf $(x).mp3"_s;
    arm({10, 30});
    tickAt({10, 30});
    QCOMPARE(m_test->shell.opened, QStringList{u"/music/a song; rm -rf $(x).mp3"_s});
}

void AlarmTickTest::aFileThatDoesNotOpenIsPassedOver() {
    m_test->shell.opens = false;
    arm({10, 30});
    tickAt({10, 30});
    QVERIFY(m_log.contains(u"popUp global xn"_s));
    QVERIFY(!m_test->program.state.alarmArmed);
}

void AlarmTickTest::theBuiltInPlayerShowsItsWindowAndNothingElseAndDisarms() {
    m_builtIn = true;
    arm({10, 30});
    tickAt({10, 30});
    QCOMPARE(m_log, (QStringList{u"load frmOptions"_s, u"load frmAlarm"_s, u"show frmAlarm"_s}));
    QCOMPARE(m_test->shell.opened, QStringList());
    QCOMPARE(m_stickers->made.size(), std::size_t(0));
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(m_test->program.state.alarmMediaFile, QString());
}

void AlarmTickTest::theOptionsAreLoadedBySilentReferenceWhenTheAlarmFires() {
    arm({10, 30});
    tickAt({10, 29, 59});
    QVERIFY(m_test->program.windows.loaded<OptionsWindow>() == nullptr);
    tickAt({10, 30});
    auto* options = m_test->program.windows.loaded<OptionsWindow>();
    QVERIFY(options != nullptr);
    QVERIFY(!options->form().isVisible());
}

void AlarmTickTest::theNextAlarmUsesTheSameSticker() {
    arm({10, 30});
    tickAt({10, 30});
    arm({10, 31});
    tickAt({10, 31});
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
    QCOMPARE(m_log.count(u"popUp global xn"_s), 2);
}

void AlarmTickTest::theTextOfTheAlarmStaysAfterItFired() {
    arm({10, 30});
    tickAt({10, 30});
    QCOMPARE(m_test->program.state.alarmTimeText, u"10:30:00"_s);
    QCOMPARE(m_test->program.state.alarmTime, QTime(10, 30));
}

void AlarmTickTest::aMissingMessageInTheWindowedTickEndsItAndTheAlarmStaysArmed() {
    start();
    m_log.clear();
    QVERIFY(QFile::remove(m_test->folder.file(u"Msg.txt"_s)));
    arm({10, 30});
    m_test->program.state.RemindPending = true;
    start().MS2().setRows(5);
    start().MS2().setRow(1);
    m_test->clock.set(QDateTime(m_test->clock.date(), QTime(10, 30)));
    emit start().findChild<AlignedTimer*>(u"Timer23"_s)->tick();
    QVERIFY(m_test->program.state.alarmArmed);
    QCOMPARE(m_test->boxes.asked.size(), 0);
    QVERIFY(!m_log.contains(u"popUp global xn"_s));
    // The document was opened before, and the reminders behind the failure were not looked at.
    QCOMPARE(m_test->shell.opened.size(), 1);
    QCOMPARE(start().MS2().Row(), 1);
    QCOMPARE(m_stickers->made.back()->Text1().Text(), u"\r\n"_s);
    m_test->folder.write(u"Msg.txt"_s, "late");
    m_test->clock.advanceSeconds(24 * 3600);
    emit start().findChild<AlignedTimer*>(u"Timer23"_s)->tick();
    QVERIFY(!m_test->program.state.alarmArmed);
}

void AlarmTickTest::aMissingMessageInTheTrayIsAFailure() {
    QVERIFY(QFile::remove(m_test->folder.file(u"Msg.txt"_s)));
    arm({10, 30});
    const auto failure = firstFailure([this] { tickAt({10, 30}); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::FileNotFound);
    QVERIFY(m_test->program.state.alarmArmed);
    // The clock is told first of all.
    QCOMPARE(m_owner->clock, u"10 : 30 : 00"_s);
}

void AlarmTickTest::theWindowedTickDisarmsThroughItsForm() {
    start().findChild<Label*>(u"lblAlarm"_s)->setCaption(u"10:30:00"_s);
    arm({10, 30});
    m_test->clock.set(QDateTime(m_test->clock.date(), QTime(10, 30)));
    emit start().findChild<AlignedTimer*>(u"Timer23"_s)->tick();
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(start().findChild<Label*>(u"lblAlarm"_s)->Caption(), QString());
    QCOMPARE(start().findChild<Label*>(u"lblVreme"_s)->Caption(), u"10 : 30 : 00"_s);
}

void AlarmTickTest::theScanRunsOnlyWhileRemindersArePending() {
    MSFlexGrid& MS2 = start().MS2();
    MS2.setRows(5);
    MS2.setRow(2);
    m_tick->run(*m_owner);
    QCOMPARE(MS2.Row(), 2);
    m_test->program.state.RemindPending = true;
    m_tick->run(*m_owner);
    QCOMPARE(MS2.Row(), 4);
}

void AlarmTickTest::theAlarmFiresWithNoWindowOnTheScreen() {
    start();
    m_test->program.windows.get<MainWindow>().form().Hide();
    arm({10, 30});
    tickAt({10, 30});
    QVERIFY(!m_test->program.windows.get<MainWindow>().form().isVisible());
    QVERIFY(m_log.contains(u"popUp global xn"_s));
}

void AlarmTickTest::theFileOpensBeforeTheStickerIsMade() {
    std::size_t made = 1;
    m_test->shell.whileOpening = [&] { made = m_stickers->made.size(); };
    arm({10, 30});
    tickAt({10, 30});
    QCOMPARE(made, std::size_t(0));
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
}

void AlarmTickTest::theNextAlarmReplacesWhatStandsInItsSticker() {
    arm({10, 30});
    tickAt({10, 30});
    m_stickers->made.back()->Text1().SetText(u"typed by hand"_s);
    m_test->folder.write(u"Msg.txt"_s, "Alarm time: 10:31:00\r\nCake");
    arm({10, 31});
    tickAt({10, 31});
    QCOMPARE(m_stickers->made.back()->Text1().Text(), u"Alarm time: 10:31:00\r\nCake"_s);
}

void AlarmTickTest::theAlarmComesBeforeTheReminders() {
    dueReminder({10, 30});
    arm({10, 30});
    tickAt({10, 30});
    const auto alarm = m_log.indexOf(u"popUp global xn"_s);
    const auto reminder = m_log.indexOf(u"new xn"_s);
    QVERIFY(alarm >= 0);
    QVERIFY(reminder > alarm);
    QVERIFY(!m_test->program.state.alarmArmed);
}

void AlarmTickTest::aTickStaysInItsSecondWhateverTheAlarmTakes() {
    dueReminder({10, 30});
    m_test->shell.whileOpening = [this] { m_test->clock.advanceSeconds(3); };
    arm({10, 30});
    tickAt({10, 30});
    QVERIFY(m_log.contains(u"popUp xn"_s));
}

void AlarmTickTest::theWindowsAlarmDisplayStaysUntilTheNextActivation() {
    auto& main =
        static_cast<LoggedPanel<MainWindow>&>(m_test->program.windows.get<MainWindow>().form());
    arm({10, 30});
    main.Show();
    QCOMPARE(main.alarmShown(), u"10:30:00"_s);
    tickAt({10, 30});
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(main.alarmShown(), u"10:30:00"_s);
    main.Hide();
    main.Show();
    QCOMPARE(main.alarmShown(), QString());
}

void AlarmTickTest::theMessageStaysOnTheDiskAndNothingElseIsKept() {
    arm({10, 30});
    tickAt({10, 30});
    QCOMPARE(m_test->folder.names(), QStringList{u"Msg.txt"_s});
    QCOMPARE(m_test->folder.read(u"Msg.txt"_s), QByteArray("Alarm time: 10:30:00\r\nTea"));
    QCOMPARE(m_test->store.valueCount(), 0);
}

void AlarmTickTest::twentyFourHoursOfJitterySecondsSkipNone() {
    auto owned = std::make_unique<JitteryShot>();
    JitteryShot& shot = *owned;
    AlignedTimer timer(m_test->clock, std::move(owned));
    QSet<qint64> seen;
    int ticks = 0;
    connect(&timer, &AlignedTimer::tick, this, [&] {
        ++ticks;
        seen.insert(m_test->clock.now().toSecsSinceEpoch());
    });
    QRandomGenerator random(20260314);
    const QDateTime first = m_test->clock.now();
    timer.start();
    constexpr int Day = 24 * 3600;
    while (first.secsTo(m_test->clock.now()) < Day) {
        // The thread is late by up to nearly nine tenths of a second.
        m_test->clock.advanceMilliseconds(shot.delay + random.bounded(850));
        shot.expire();
    }
    QVERIFY(ticks >= Day);
    for (qint64 second = 1; second < Day; ++second)
        QVERIFY2(seen.contains(first.toSecsSinceEpoch() + second),
                 qPrintable(QString::number(second)));
}

ORVALIS_TEST_MAIN_WITH(Application, AlarmTickTest)
#include "alarm_tick_test.moc"
