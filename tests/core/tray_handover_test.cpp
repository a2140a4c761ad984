// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/label.h"
#include "core/chrome_window.h"
#include "core/sys_tray.h"
#include "core/tray_handover.h"
#include "support/plain_windows.h"
#include "support/recording_tray_icon.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QApplication>
#include <QMenu>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;
using Call = RecordingTrayIcon::Call;

namespace {

/// One of the five windows, shown, and what it hands to the tray.
struct Stage {
    explicit Stage(ChromeKind kind = ChromeKind::Main) {
        Program& program = outside.program;
        program.tick = &tick;
        program.windows.registerMaker<StartWindow>([this] {
            auto made = std::make_unique<PlainStart>();
            start = made.get();
            return made;
        });
        program.windows.registerMaker<OptionsWindow>(
            [] { return std::make_unique<PlainOptions>(false); });
        program.windows.registerMaker<PrintWindow>(
            [] { return std::make_unique<PlainWindow<PrintWindow>>(u"frmPrint"_s); });
        program.windows.registerMaker<LettersWindow>(
            [] { return std::make_unique<PlainWindow<LettersWindow>>(u"frmpisma"_s); });
        program.windows.get<StartWindow>();
        program.makeTrayOwner = [this](ChromeWindow& owning) {
            auto owner = std::make_unique<TrayHandover>(owning, icons);
            handover = owner.get();
            return owner;
        };
        window = std::make_unique<ChromeWindow>(program, chromeRow(kind));
        window->load();
        window->Show();
    }
    void arm() {
        outside.program.state.alarmArmed = true;
        outside.program.state.alarmTimeText = u"07:30:00"_s;
        window->showAlarm();
    }
    QStringList entries() const {
        QStringList captions;
        for (const QAction* entry : icons.menu()->actions())
            if (entry->isVisible())
                captions << (entry->isSeparator() ? u"-"_s : entry->text());
        return captions;
    }
    /// What each entry answers to, also those out of sight.
    QStringList keys() const {
        QStringList all;
        for (const QAction* entry : icons.menu()->actions())
            all << entry->data().toString();
        return all;
    }
    void choose(const QString& caption) const {
        for (QAction* entry : icons.menu()->actions())
            if (entry->text() == caption && !entry->isSeparator())
                return emit entry->triggered();
        QFAIL(qPrintable(u"no entry "_s + caption));
    }
    /// Chooses an entry whose command ends the program. \returns whether it did.
    bool chooseEnds(const QString& caption) {
        bool ended = false;
        choose(caption);
        try {
            QCoreApplication::sendPostedEvents(handover->trayForm(), QEvent::MetaCall);
        } catch (const ProgramEnded&) {
            ended = true;
        }
        return ended;
    }
    QString tip() const { return icons.record().szTip.text(); }
    qint64 iconInTray() const { return icons.record().hIcon.cacheKey(); }
    bool armedLook() const {
        const QImage shown = icons.record().hIcon.pixmap(32, 32).toImage();
        return shown == window->trayIcon(1)->Picture().pixmap(QSize(32, 32), 1).toImage();
    }

    TestProgram outside;
    CountingTick tick;
    PlainStickers stickers{outside.program};
    RecordingTrayIcon icons;
    PlainStart* start = nullptr;
    TrayHandover* handover = nullptr;
    std::unique_ptr<ChromeWindow> window;
};

} // namespace

class TrayHandoverTest : public QObject {
    Q_OBJECT
private slots:
    void miniHidesTheWindowStopsItsTickAndBringsTheIconUp_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("firstEntry");
        QTest::addColumn<QString>("idleTip");
        QTest::addColumn<QString>("armedTip");
        const auto row = [](const char* name, int kind, const QString& word) {
            QTest::newRow(name) << kind << u"Show "_s + word << u' ' + word + u' '
                                << u' ' + word + u" - Alarm set at 07:30:00"_s;
        };
        row("frmnotes", 0, u"Orvalis"_s);
        row("frmnotes1", 1, u"Reminder"_s);
        row("frmnotes2", 2, u"Notes"_s);
        row("frmnotes3", 3, u"Address"_s);
        row("frmnotes4", 4, u"Password"_s);
    }
    void miniHidesTheWindowStopsItsTickAndBringsTheIconUp() {
        QFETCH(int, kind);
        QFETCH(QString, firstEntry);
        QFETCH(QString, idleTip);
        QFETCH(QString, armedTip);
        {
            Stage stage(static_cast<ChromeKind>(kind));
            stage.outside.program.state.minimisedFrom = -1;
            stage.window->miniClick();
            QVERIFY(!stage.window->isVisible());
            QVERIFY(!stage.start->timer23Enabled());
            QVERIFY(stage.outside.program.state.trayActive);
            QCOMPARE(stage.outside.program.state.minimisedFrom, kind);
            QCOMPARE(stage.tip(), idleTip);
            QVERIFY(!stage.armedLook());
            QCOMPARE(stage.entries(), (QStringList{firstEntry, u"-"_s, u"Create Sticker"_s, u"-"_s,
                                                   u"Options"_s, u"-"_s, u"Exit"_s}));
            QCOMPARE(stage.handover->trayForm()->DefaultMenuIndex(), 0);
        }
        {
            Stage stage(static_cast<ChromeKind>(kind));
            stage.arm();
            stage.window->miniClick();
            QCOMPARE(stage.tip(), armedTip);
            QVERIFY(stage.armedLook());
            QCOMPARE(stage.entries(),
                     (QStringList{firstEntry, u"-"_s, u"Create Sticker"_s, u"-"_s,
                                  u"Disable Alarm"_s, u"-"_s, u"Options"_s, u"-"_s, u"Exit"_s}));
        }
    }

    void eachEntryHasItsKey() {
        Stage idle;
        idle.window->miniClick();
        QCOMPARE(idle.keys(),
                 (QStringList{u"open"_s, {}, u"nalep"_s, {}, u"options"_s, {}, u"close"_s}));
        Stage armed;
        armed.arm();
        armed.window->miniClick();
        QCOMPARE(
            armed.keys(),
            (QStringList{
                u"open"_s, {}, u"nalep"_s, {}, u"disable"_s, {}, u"options"_s, {}, u"close"_s}));
    }

    void aPanelLeavesTheScreenOnceItsIconIsComplete_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("visible");
        QTest::newRow("frmnotes hides first") << 0 << false;
        for (int kind = 1; kind < 5; ++kind)
            QTest::addRow("frmnotes%d hides last", kind) << kind << true;
    }
    void aPanelLeavesTheScreenOnceItsIconIsComplete() {
        QFETCH(int, kind);
        QFETCH(bool, visible);
        Stage stage(static_cast<ChromeKind>(kind));
        stage.arm();
        QList<bool> wasVisible;
        stage.icons.atCall = [&](Call) { wasVisible << stage.window->isVisible(); };
        stage.window->miniClick();
        QCOMPARE(wasVisible, (QList<bool>{visible, visible, visible}));
        QVERIFY(!stage.window->isVisible());
    }

    void theWindowIsBackBeforeTheIconGoesAndTheTickComesLast() {
        for (const int code : {0, 515}) {
            Stage stage;
            stage.window->miniClick();
            QStringList seen;
            stage.icons.atCall = [&](Call call) {
                if (call == Call::Delete)
                    seen << (stage.window->isVisible() ? u"shown"_s : u"hidden"_s)
                         << (stage.start->timer23Enabled() ? u"ticking"_s : u"not ticking"_s);
            };
            if (code == 0)
                stage.choose(u"Show Orvalis"_s);
            else
                stage.icons.tell(code);
            QTRY_VERIFY(stage.start->timer23Enabled());
            QCOMPARE(seen, (QStringList{u"shown"_s, u"not ticking"_s}));
        }
    }

    void menuAndTipFollowTheWindowsOwnAlarmDisplay() {
        Stage stage;
        stage.outside.program.state.alarmArmed = true;
        stage.window->miniClick();
        QCOMPARE(stage.tip(), u" Orvalis "_s);
        QVERIFY(!stage.entries().contains(u"Disable Alarm"_s));
    }

    void eachPanelUnloadsItsSideWindow_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("letters");
        QTest::addColumn<bool>("print");
        QTest::newRow("frmnotes") << 0 << true << true;
        QTest::newRow("frmnotes1") << 1 << true << true;
        QTest::newRow("frmnotes2") << 2 << false << true;
        QTest::newRow("frmnotes3") << 3 << true << false;
        QTest::newRow("frmnotes4") << 4 << true << true;
    }
    void eachPanelUnloadsItsSideWindow() {
        QFETCH(int, kind);
        QFETCH(bool, letters);
        QFETCH(bool, print);
        Stage stage(static_cast<ChromeKind>(kind));
        Windows& windows = stage.outside.program.windows;
        windows.get<LettersWindow>();
        windows.get<PrintWindow>();
        stage.window->miniClick();
        QCOMPARE(windows.loaded<LettersWindow>() != nullptr, letters);
        QCOMPARE(windows.loaded<PrintWindow>() != nullptr, print);
    }

    void theIconIsAddedBeforeItsMenuTipAndIconAreFilledIn() {
        Stage stage;
        stage.arm();
        stage.window->miniClick();
        QCOMPARE(stage.icons.entries().constFirst().call, Call::Add);
        QCOMPARE(stage.icons.entries().at(1).flags, 4U);
        QCOMPARE(stage.icons.entries().at(2).flags, 2U);
        QCOMPARE(stage.icons.entries().size(), 3);
    }

    void openShowsTheWindowAndGivesTheTickBack() {
        Stage stage(ChromeKind::Reminder);
        stage.window->miniClick();
        stage.choose(u"Show Reminder"_s);
        QTRY_VERIFY(stage.window->isVisible());
        QVERIFY(stage.start->timer23Enabled());
        QVERIFY(!stage.outside.program.state.trayActive);
        QVERIFY(stage.handover->trayForm() == nullptr);
        QCOMPARE(stage.icons.count(Call::Delete), 1);
    }

    void aChoiceMadeTwiceIsMetOnce() {
        Stage stage;
        stage.window->miniClick();
        stage.choose(u"Show Orvalis"_s);
        stage.choose(u"Show Orvalis"_s);
        QTRY_VERIFY(stage.window->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(stage.icons.count(Call::Delete), 1);
    }

    void theWayToTheTrayCanBeGoneAgainAndAgain() {
        Stage stage;
        for (int round = 0; round < 3; ++round) {
            stage.window->miniClick();
            QVERIFY(!stage.window->isVisible());
            stage.icons.tell({512, 513, 514, 515, 514});
            QVERIFY(stage.window->isVisible());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        QCOMPARE(stage.icons.count(Call::Add), 3);
        QCOMPARE(stage.icons.count(Call::Delete), 3);
    }

    void aLeftDoubleClickRestoresARightOneDoesNot() {
        Stage stage;
        stage.window->miniClick();
        stage.icons.tell(518);
        QVERIFY(!stage.window->isVisible());
        stage.icons.tell(514);
        QVERIFY2(!stage.window->isVisible(), "a single click does nothing");
        stage.icons.tell(515);
        QVERIFY(stage.window->isVisible());
        QVERIFY(stage.start->timer23Enabled());
    }

    void theRightButtonsPressOpensTheMenu() {
        Stage stage;
        stage.window->miniClick();
        stage.icons.tell(514);
        QCOMPARE(stage.icons.count(Call::PopUp), 0);
        stage.icons.tell(516);
        QCOMPARE(stage.icons.count(Call::PopUp), 1);
        stage.icons.tell(517);
        QCOMPARE(stage.icons.count(Call::PopUp), 1);
    }

    void anIdleMenuLosesOptionsAfterThePointersFirstPass() {
        Stage stage;
        stage.window->miniClick();
        QVERIFY(stage.entries().contains(u"Options"_s));
        stage.icons.tell(512);
        QCOMPARE(stage.entries(),
                 (QStringList{u"Show Orvalis"_s, u"-"_s, u"Create Sticker"_s, u"-"_s, u"Exit"_s}));
    }

    void thePointerTellsThePanelsNameNoMore() {
        Stage stage(ChromeKind::Reminder);
        stage.window->miniClick();
        QCOMPARE(stage.tip(), u" Reminder "_s);
        stage.icons.tell(512);
        QCOMPARE(stage.tip(), u" Orvalis "_s);
    }

    void whileTheAlarmIsSetThePointerChangesNothing() {
        Stage stage;
        stage.arm();
        stage.window->miniClick();
        const int calls = static_cast<int>(stage.icons.entries().size());
        stage.icons.tell({512, 512});
        QCOMPARE(stage.icons.entries().size(), calls);
        QVERIFY(stage.entries().contains(u"Disable Alarm"_s));
        QVERIFY(stage.armedLook());
    }

    void afterAnAlarmHasFiredTheTipStaysUntilThePointerPassesOverTheIcon() {
        Stage stage;
        stage.arm();
        stage.window->miniClick();
        stage.outside.program.state.alarmArmed = false;
        QCOMPARE(stage.tip(), u" Orvalis - Alarm set at 07:30:00"_s);
        QVERIFY(stage.armedLook());
        stage.icons.tell(512);
        QCOMPARE(stage.tip(), u" Orvalis "_s);
        QVERIFY(!stage.armedLook());
        QCOMPARE(stage.entries(), (QStringList{u"Show Orvalis"_s, u"-"_s, u"Create Sticker"_s,
                                               u"-"_s, u"Options"_s, u"-"_s, u"Exit"_s}));
    }

    void disableAlarmStopsItInWindowAndTray() {
        Stage stage;
        stage.arm();
        stage.window->miniClick();
        stage.choose(u"Disable Alarm"_s);
        QTRY_VERIFY(!stage.outside.program.state.alarmArmed);
        QCOMPARE(stage.window->alarmShown(), QString());
        QCOMPARE(stage.tip(), u" Orvalis "_s);
        QVERIFY(!stage.armedLook());
        QVERIFY(!stage.entries().contains(u"Disable Alarm"_s));
        QVERIFY(stage.entries().contains(u"Options"_s));
    }

    void withAnArmedAlarmExitRefusesInWordsOfItsOwn() {
        Stage stage;
        stage.arm();
        stage.window->miniClick();
        stage.outside.boxes.expect(u"The alarm is set.\nDisable alarm before you quit."_s, 64,
                                   Answer::Ok);
        QVERIFY(!stage.chooseEnds(u"Exit"_s));
        stage.outside.boxes.verifyAllAsked();
        QVERIFY(stage.outside.program.state.trayActive);
    }

    void exitGoesByTheAlarmAndNotByTheWindowsDisplayOfIt() {
        {
            Stage stage;
            stage.arm();
            stage.window->miniClick();
            stage.outside.program.state.alarmArmed = false;
            QCOMPARE(stage.window->alarmShown(), u"07:30:00"_s);
            QVERIFY(stage.chooseEnds(u"Exit"_s));
            QVERIFY(stage.outside.boxes.asked.isEmpty());
        }
        {
            Stage stage;
            stage.window->miniClick();
            stage.outside.program.state.alarmArmed = true;
            stage.outside.boxes.expect(u"The alarm is set.\nDisable alarm before you quit."_s, 64,
                                       Answer::Ok);
            QVERIFY(!stage.chooseEnds(u"Exit"_s));
            stage.outside.boxes.verifyAllAsked();
        }
    }

    void withAnArmedAlarmAndStickersExitTellsOfTheAlarmAlone() {
        Stage stage;
        stage.arm();
        stage.outside.program.state.StickerCount = 2;
        stage.window->miniClick();
        stage.outside.boxes.expect(u"The alarm is set.\nDisable alarm before you quit."_s, 64,
                                   Answer::Ok);
        QVERIFY(!stage.chooseEnds(u"Exit"_s));
        QCOMPARE(stage.outside.boxes.asked.size(), 1);
    }

    void withStickersOpenExitAsks() {
        Stage stage;
        stage.outside.program.state.StickerCount = 2;
        stage.window->miniClick();
        stage.outside.boxes.expect(u"This will close all created stickers. Continue?"_s, 68,
                                   Answer::No, u"Exit Orvalis"_s);
        QVERIFY(!stage.chooseEnds(u"Exit"_s));
        stage.outside.boxes.verifyAllAsked();
        stage.outside.boxes.expect(u"This will close all created stickers. Continue?"_s, 68,
                                   Answer::Yes, u"Exit Orvalis"_s);
        QVERIFY(stage.chooseEnds(u"Exit"_s));
        stage.outside.boxes.verifyAllAsked();
    }

    void withoutAlarmAndStickersExitEndsAtOnceAndLeavesTheIconAsItIs() {
        Stage stage;
        stage.window->miniClick();
        QVERIFY(stage.chooseEnds(u"Exit"_s));
        QCOMPARE(stage.icons.count(Call::Delete), 0);
    }

    void optionsAndCreateStickerShowTheirWindows() {
        Stage stage;
        stage.window->miniClick();
        stage.choose(u"Options"_s);
        QTRY_VERIFY(stage.outside.program.windows.loaded<OptionsWindow>() != nullptr);
        QVERIFY(stage.outside.program.windows.get<OptionsWindow>().form().isVisible());
        stage.choose(u"Create Sticker"_s);
        QTRY_COMPARE(stage.stickers.made.size(), 1U);
        QVERIFY(stage.stickers.made.front()->form().isVisible());
        QVERIFY(!stage.window->isVisible());
    }

    void aResetWithoutATrayFormDoesNothing() {
        Stage stage;
        stage.handover->TrayReset();
        stage.window->resetTray();
        QVERIFY(stage.icons.entries().isEmpty());
    }

    void aResetFromAnotherWindowReachesItsOwnTrayAlone() {
        Stage stage;
        stage.arm();
        stage.window->miniClick();
        stage.window->resetTray();
        QCOMPARE(stage.tip(), u" Orvalis "_s);
        QVERIFY(!stage.entries().contains(u"Disable Alarm"_s));
    }

    void closeGoesToTheTrayWithStickersOpenWithoutAQuestion() {
        Stage stage;
        stage.outside.program.state.StickerCount = 1;
        stage.window->exitClick();
        QVERIFY(stage.outside.program.state.trayActive);
        QVERIFY(stage.outside.boxes.asked.isEmpty());
    }
};

ORVALIS_TEST_MAIN_WITH(QApplication, TrayHandoverTest)
#include "tray_handover_test.moc"
