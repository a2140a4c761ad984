// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/reminder_scan.h"
#include "core/start_window.h"
#include "support/role_doubles.h"
#include "support/sticker_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class ReminderScanTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void theKeyIsTheLongDateASlashAndTheTime();
    void aReminderInItsSecondPopsUpWithItsMessage();
    void theStickerIsBlueAndBold();
    void theSoundPlaysBeforeTheStickerShows();
    void aReminderWhoseDateIsNotTodayNeverFiresAndStays();
    void withoutAMatchTheGridRestsOnItsLastRow();
    void eachReminderHasAStickerOfItsOwn();
    void onlyOneReminderFiresInATick();
    void twoRemindersOfOneSecondFireOnTwoTicksWhileTheSecondLasts();
    void theSecondOfTwoRemindersOfOneSecondDoesNotFireOnceTheSecondIsOver();
    void theListOnThePanelLosesTwoRowsAtItsOwnCurrentRow();
    void firingLoadsTheReminderPanelSilently();
    void bothGridsAreSavedOnce();
    void theListsChangeOnlyOnceTheStickerIsUp();
    void pendingIsSettledOnceTheListsAreSaved();
    void pendingGoesOffWhereTheGridRestsOnRowOne();
    void pendingStaysOnWhereTheGridRestsElsewhere();
    void theFiringOfTheOnlyReminderEmptiesBothGridsAndStaysPending();
    void aPanelWithOneRowAloneIsAFailureAndTheHiddenGridStays();
    void aKeyInTheLastRowHasNoMessageAndFails();
    void aReminderOfAFormerRunStaysSilentUntilOneIsSaved();
    void aHeaderOfAnotherLanguageNoLongerMatches();
    void aTimeThatWasNeverTouchedNeverComes();

private:
    QString key(const QTime& time) const {
        return reminderKey(QDateTime(m_test->clock.date(), time));
    }
    void fill(MSFlexGrid& grid, const QStringList& rows);
    QStringList rows(const MSFlexGrid& grid) const;
    void scan() { scanForReminder(m_test->program, m_test->clock.now()); }
    MSFlexGrid& MS2() { return m_test->program.windows.get<StartWindow>().MS2(); }
    MSFlexGrid& MS3() { return m_test->program.windows.get<ReminderPanel>().MS3(); }

    std::unique_ptr<FakeStickers> m_stickers;
    std::unique_ptr<TestProgram> m_test;
    QStringList m_log;
};

void ReminderScanTest::init() {
    m_log.clear();
    m_test = std::make_unique<TestProgram>();
    m_stickers = std::make_unique<FakeStickers>(m_log);
    Program& program = m_test->program;
    program.stickers = m_stickers.get();
    program.state.RemindPending = true;
    program.windows.registerMaker<StartWindow>(
        [&program] { return std::make_unique<frmStart>(program, false); });
    program.windows.registerMaker<MainWindow>([&program, this] {
        return std::make_unique<LoggedPanel<MainWindow>>(program, ChromeKind::Main, m_log);
    });
    program.windows.registerMaker<ReminderPanel>(
        [&program, this] { return std::make_unique<FakeReminderPanel>(program, m_log); });
    MS2();
    m_log.clear();
}

void ReminderScanTest::fill(MSFlexGrid& grid, const QStringList& rows) {
    grid.setRows(static_cast<int>(rows.size()));
    for (int i = 0; i < rows.size(); ++i)
        grid.setTextMatrix(i, 0, rows.at(i));
}

QStringList ReminderScanTest::rows(const MSFlexGrid& grid) const {
    QStringList result;
    for (int i = 0; i < grid.Rows(); ++i)
        result << grid.TextMatrix(i, 0);
    return result;
}

void ReminderScanTest::theKeyIsTheLongDateASlashAndTheTime() {
    QCOMPARE(reminderKey(QDateTime(QDate(2026, 3, 4), QTime(7, 5, 9))),
             u"Wednesday, March 04, 2026/07:05:09"_s);
}

void ReminderScanTest::aReminderInItsSecondPopsUpWithItsMessage() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"Call Ann"_s});
    fill(MS3(), {u""_s, u"a"_s, u"b"_s});
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
    QCOMPARE(m_stickers->made.back()->Text1().Text(), u"\r\nREMINDER:\r\nCall Ann"_s);
    QVERIFY(m_log.contains(u"popUp xn"_s));
    QVERIFY(m_test->program.state.RemindFired);
}

void ReminderScanTest::theStickerIsBlueAndBold() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"Call Ann"_s});
    fill(MS3(), {u""_s, u"a"_s, u"b"_s});
    scan();
    RichTextBox& text = m_stickers->made.back()->Text1();
    text.SetSelStart(0);
    text.SetSelLength(static_cast<int>(text.Text().size()));
    QCOMPARE(text.SelBold(), std::optional(true));
    QCOMPARE(text.SelColor(), std::optional(16711680U));
}

void ReminderScanTest::theSoundPlaysBeforeTheStickerShows() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"Call Ann"_s});
    fill(MS3(), {u""_s, u"a"_s, u"b"_s});
    bool shownBefore = true;
    m_test->sound.whilePlaying = [&] { shownBefore = m_log.contains(u"popUp xn"_s); };
    scan();
    QVERIFY(!shownBefore);
    QCOMPARE(m_test->sound.played, QStringList{m_test->folder.file(u"Alarm.wav"_s)});
    QCOMPARE(m_test->shell.opened, QStringList());
}

void ReminderScanTest::aReminderWhoseDateIsNotTodayNeverFiresAndStays() {
    const QStringList list{
        u""_s, reminderKey(QDateTime(QDate(2026, 3, 13), QTime(10, 24, 36))), u"Yesterday"_s,
        reminderKey(QDateTime(QDate(2027, 3, 14), QTime(10, 24, 36))), u"Next year"_s};
    fill(MS2(), list);
    scan();
    QCOMPARE(rows(MS2()), list);
    QCOMPARE(m_stickers->made.size(), std::size_t(0));
    QVERIFY(m_test->program.state.RemindPending);
    QVERIFY(!m_test->program.state.RemindFired);
}

void ReminderScanTest::withoutAMatchTheGridRestsOnItsLastRow() {
    fill(MS2(), {u""_s, key({11, 0}), u"a"_s, key({12, 0}), u"b"_s});
    MS2().setRow(1);
    scan();
    QCOMPARE(MS2().Row(), 4);
}

void ReminderScanTest::eachReminderHasAStickerOfItsOwn() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s, u""_s, key({10, 24, 37}), u"b"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    scan();
    m_test->clock.advanceSeconds(1);
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(2));
    QCOMPARE(m_stickers->made.back()->Text1().Text(), u"\r\nREMINDER:\r\nb"_s);
}

void ReminderScanTest::onlyOneReminderFiresInATick() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s, key({10, 24, 36}), u"b"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
    QCOMPARE(m_stickers->made.back()->Text1().Text(), u"\r\nREMINDER:\r\na"_s);
    QCOMPARE(m_test->sound.played.size(), 1);
}

void ReminderScanTest::twoRemindersOfOneSecondFireOnTwoTicksWhileTheSecondLasts() {
    // A header row above, so that the removal of the first reminder's message row and of the row
    // behind it leaves the second one's header away: the rows go as they stand.
    fill(MS2(), {key({10, 24, 36}), u"a"_s, u""_s, key({10, 24, 36}), u"b"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    scan();
    QCOMPARE(rows(MS2()), (QStringList{key({10, 24, 36}), key({10, 24, 36}), u"b"_s}));
    m_test->program.state.RemindPending = true;
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(2));
}

void ReminderScanTest::theSecondOfTwoRemindersOfOneSecondDoesNotFireOnceTheSecondIsOver() {
    fill(MS2(), {key({10, 24, 36}), u"a"_s, u""_s, key({10, 24, 36}), u"b"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    scan();
    m_test->clock.advanceSeconds(1);
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
}

void ReminderScanTest::theListOnThePanelLosesTwoRowsAtItsOwnCurrentRow() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s, key({11, 0}), u"b"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s});
    MS3().setRow(3);
    scan();
    QCOMPARE(rows(MS3()), (QStringList{u""_s, u"1"_s, u"2"_s}));
    // The hidden copy loses the message row and the row behind it.
    QCOMPARE(rows(MS2()), (QStringList{u""_s, key({10, 24, 36}), u"b"_s}));
}

void ReminderScanTest::firingLoadsTheReminderPanelSilently() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s, u""_s, u""_s});
    QVERIFY(m_test->program.windows.loaded<ReminderPanel>() == nullptr);
    endSilently([this] { scan(); });
    auto* panel = m_test->program.windows.loaded<ReminderPanel>();
    QVERIFY(panel != nullptr);
    QVERIFY(!panel->form().isVisible());
}

void ReminderScanTest::bothGridsAreSavedOnce() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s, u""_s, u""_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    scan();
    QCOMPARE(m_log.count(u"sv3"_s), 1);
    QCOMPARE(m_log.count(u"sv1"_s), 0);
}

void ReminderScanTest::theListsChangeOnlyOnceTheStickerIsUp() {
    const QStringList list{u""_s, key({10, 24, 36}), u"a"_s, u"x"_s, u"y"_s};
    fill(MS2(), list);
    fill(MS3(), list);
    QStringList hidden;
    QStringList shown;
    m_test->sound.whilePlaying = [&] {
        hidden = rows(MS2());
        shown = rows(MS3());
        QVERIFY(!m_test->program.state.RemindFired);
    };
    scan();
    QCOMPARE(hidden, list);
    QCOMPARE(shown, list);
    QVERIFY(m_log.indexOf(u"popUp xn"_s) < m_log.indexOf(u"sv3"_s));
}

void ReminderScanTest::pendingIsSettledOnceTheListsAreSaved() {
    fill(MS2(), {key({10, 24, 36}), u"a"_s, u"x"_s, u"y"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    auto& panel =
        static_cast<FakeReminderPanel&>(m_test->program.windows.get<ReminderPanel>().form());
    int hidden = 0;
    int shown = 0;
    bool pending = false;
    panel.whileSaving = [&] {
        hidden = MS2().Rows();
        shown = MS3().Rows();
        pending = m_test->program.state.RemindPending;
    };
    scan();
    QCOMPARE(hidden, 2);
    QCOMPARE(shown, 1);
    QVERIFY(pending);
    QVERIFY(!m_test->program.state.RemindPending);
}

void ReminderScanTest::pendingGoesOffWhereTheGridRestsOnRowOne() {
    fill(MS2(), {key({10, 24, 36}), u"a"_s, u"x"_s, u"y"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    scan();
    QCOMPARE(MS2().Row(), 1);
    QVERIFY(!m_test->program.state.RemindPending);
}

void ReminderScanTest::pendingStaysOnWhereTheGridRestsElsewhere() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s, u"x"_s, u"y"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    m_test->program.state.RemindPending = false;
    scan();
    QCOMPARE(MS2().Row(), 2);
    QVERIFY(m_test->program.state.RemindPending);
}

void ReminderScanTest::theFiringOfTheOnlyReminderEmptiesBothGridsAndStaysPending() {
    fill(MS2(), {u""_s, key({10, 24, 36}), u"a"_s});
    fill(MS3(), {u""_s, key({10, 24, 36}), u"a"_s});
    MS3().setRow(2);
    scan();
    QCOMPARE(rows(MS2()), QStringList{u""_s});
    QCOMPARE(rows(MS3()), QStringList{u""_s});
    QCOMPARE(MS2().Row(), 0);
    QVERIFY(m_test->program.state.RemindPending);
}

void ReminderScanTest::aPanelWithOneRowAloneIsAFailureAndTheHiddenGridStays() {
    const QStringList list{u""_s, key({10, 24, 36}), u"a"_s};
    fill(MS2(), list);
    const auto failure = firstFailure([this] { scan(); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::CannotRemoveLastRow);
    QCOMPARE(rows(MS2()), list);
    QVERIFY(m_log.contains(u"popUp xn"_s));
    QVERIFY(m_test->program.state.RemindFired);
    QVERIFY(!m_log.contains(u"sv3"_s));
    QVERIFY(m_test->program.state.RemindPending);
}

void ReminderScanTest::aKeyInTheLastRowHasNoMessageAndFails() {
    fill(MS2(), {u""_s, key({10, 24, 36})});
    const auto failure = firstFailure([this] { scan(); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidRowValue);
    QCOMPARE(m_stickers->made.size(), std::size_t(0));
}

void ReminderScanTest::aReminderOfAFormerRunStaysSilentUntilOneIsSaved() {
    m_test->folder.write(u"tmp2.brf"_s,
                         " 3  1 \r\n\r\n" + key({10, 24, 36}).toLatin1() + "\r\nOld\r\n");
    // A start reads no file: the hidden grid is empty and nothing is pending.
    QCOMPARE(rows(MS2()), QStringList{QString()});
    QVERIFY(!SharedState().RemindPending);
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(0));
    // Saving a reminder loads the grid with all of them.
    fill(MS2(), {u""_s, key({10, 24, 36}), u"Old"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
}

void ReminderScanTest::aHeaderOfAnotherLanguageNoLongerMatches() {
    const QStringList list{u""_s, u"Saturday, March 14, 2026/10:24:36"_s, u"Call Ann"_s};
    fill(MS2(), list);
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(0));
    QCOMPARE(rows(MS2()), list);
    fill(MS2(), {u""_s, u"Samstag, März 14, 2026/10:24:36"_s, u"Anna anrufen"_s});
    scan();
    QCOMPARE(m_stickers->made.size(), std::size_t(1));
}

void ReminderScanTest::aTimeThatWasNeverTouchedNeverComes() {
    fill(MS2(), {u""_s, u"Saturday, March 14, 2026/00 : 00 : 00"_s, u"never"_s});
    fill(MS3(), {u""_s, u"1"_s, u"2"_s});
    m_test->clock.set(QDateTime(m_test->clock.date(), QTime(0, 0)));
    for (int minute = 0; minute < 24 * 60; ++minute) {
        scan();
        m_test->clock.advanceSeconds(60);
    }
    QCOMPARE(m_stickers->made.size(), std::size_t(0));
}

ORVALIS_TEST_MAIN_WITH(Application, ReminderScanTest)
#include "reminder_scan_test.moc"
