// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "core/chrome_window.h"
#include "core/clock_label.h"
#include "runtime/aligned_timer.h"
#include "runtime/failure.h"
#include "support/pointer_events.h"
#include "support/role_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QScreen>

#include <utility>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr ChromeKind AllKinds[] = {ChromeKind::Main, ChromeKind::Reminder, ChromeKind::Notes,
                                   ChromeKind::Address, ChromeKind::Password};

class FakeStart final : public LoggedWindow<StartWindow> {
public:
    using LoggedWindow::LoggedWindow;
    void setTimer23Enabled(bool enabled) override { m_enabled = enabled; }
    bool timer23Enabled() const override { return m_enabled; }
    MSFlexGrid& MS2() override { return m_grid; }

private:
    bool m_enabled = true;
    MSFlexGrid m_grid;
};

class FakeMenus final : public LoggedWindow<PopupMenus> {
public:
    using LoggedWindow::LoggedWindow;
    QStringList popped;

protected:
    void popUpMenu(const QString& name, std::optional<QPoint>) override { popped << name; }
};

/// Counts what is painted.
class PaintCount final : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

/// A tray that cannot be reset.
class FailingTray final : public TrayOwner {
public:
    void TrayBuild() override {}
    void TrayReset() override { throw RuntimeError(ErrorNumber::InvalidProcedureCall); }
};

/// A panel that wants to stay when it is closed.
class StayingPanel final : public LoggedPanel<NotesPanel> {
public:
    StayingPanel(Program& program, QStringList& log)
        : LoggedPanel(program, ChromeKind::Notes, log) {}
    int asked = 0;

protected:
    bool exitExtra() override {
        ++asked;
        return false;
    }
};

} // namespace

class ChromeWindowTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    // Image buttons.
    void thePointerOnAnImageButtonGivesItItsHoverPicture_data();
    void thePointerOnAnImageButtonGivesItItsHoverPicture();
    void movingFromExitStraightToMiniGivesExitItsNormalPictureBack();
    void theBellsLookDifferentUnderThePointer();
    void movingOverTheFormGivesNormalPicturesBack();
    void idleMovesRedrawNothing();
    void leavingAnImageButtonForAnythingGivesItsNormalPictureBack();
    void hidingTheWindowGivesNormalPicturesBack();
    void toolTipsAreThoseOfTheTable();
    void helpPopsUpTheHelpMenuOnTheLeftPressAlone();
    void theHelpMenuEndsTheHover();

    // Clock.
    void theClockIsSetWhenTheWindowShows();
    void theClockFollowsItsTimerInTheChosenFormat();
    void aFormatOutsideTheTableGivesAnEmptyClock();
    void theDateStandsInTheClockFromTheHoverToTheNextTick();
    void eachClockHasItsTimerAndItsInterval();
    void aHiddenWindowsClockSleeps();
    void aTimeThatCannotBeToldLeavesTheClockAsItIs();

    // Alarm.
    void setOpensTheAlarmDialogNotModal();
    void activatingWhileArmedShowsTheAlarm();
    void anAlarmShownHereIsNotShownAgainAtTheNextActivation();
    void showingTheAlarmBringsAHiddenDisplayBack();
    void activatingWhileIdleClearsTheDisplayAndTheTray();
    void aFailureAtActivationIsPassedOver();
    void stopDisarms();
    void aCaptionThatChangesMovesTheImagesAndTheMirror();
    void oneBellHandsTheKeyboardOnToTheOther();

    // Closing.
    void closingIsRefusedWhileTheAlarmIsShown();
    void closingGoesToTheTrayWithoutAQuestionWhileStickersAreOpen();
    void closingNeverEndsTheProgramWhileStartIsOne();
    void closingEndsTheProgramOtherwise();
    void closingLooksAtTheSettingEachTime();
    void closingWritesNoSettings();
    void aPanelsOwnStepComesAfterTheAlarmsRefusalAndMayStay();
    void theWindowManagersCloseDoesWhatExitDoes();

    // Tray.
    void eachWindowGoesToTheTrayInItsOwnOrder_data();
    void eachWindowGoesToTheTrayInItsOwnOrder();
    void withoutATraySideTheWindowStaysAsItIs();
    void piciResetsTheTrayOnlyWhileTheProgramIsInIt();

    // Panel labels.
    void panelLabelsCarryTheNamesOfTheirTargets();
    void aPanelLabelTellsThatThePointerIsOnIt();
    void aPanelLabelLeadsToItsTarget_data();
    void aPanelLabelLeadsToItsTarget();
    void theReminderPanelsLabelsAnswerThePressOfAnyButton();
    void theOtherPanelsLabelsAnswerAClickOfTheLeftButtonAlone();
    void aTargetThatNobodyMakesDoesNotOpen();
    void thePanelOpensWhereTheWindowStood();

    // The window itself.
    void theWindowHasTheSizeOfItsPicture();
    void aMinimisedWindowKeepsItsSize();
    void aWindowWithoutFrameHasATitleAndIsAnOrdinaryWindow();
    void draggingTheBackgroundMovesTheWindow();
    void draggingTheBackgroundsPictureMovesTheWindow();
    void anotherButtonDoesNotDrag();
    void everyControlCarriesItsName();

private:
    template <class Role>
    void makePanel(ChromeKind kind) {
        m_test->program.windows.registerMaker<Role>([this, kind] {
            return std::make_unique<LoggedPanel<Role>>(m_test->program, kind, m_log);
        });
    }
    ChromeWindow& window(ChromeKind kind);
    ChromeWindow& show(ChromeKind kind);
    Image* image(ChromeWindow& window, const QString& name) {
        return window.findChild<Image*>(name, Qt::FindDirectChildrenOnly);
    }
    Label* label(ChromeWindow& window, const QString& name) {
        return window.findChild<Label*>(name, Qt::FindDirectChildrenOnly);
    }
    void setAlarm() {
        m_test->program.state.alarmArmed = true;
        m_test->program.state.alarmTimeText = u"07:30:00"_s;
    }

    std::unique_ptr<TestProgram> m_test;
    QStringList m_log;
};

void ChromeWindowTest::init() {
    m_log.clear();
    m_test = std::make_unique<TestProgram>();
    m_test->program.makeTrayOwner = [this](ChromeWindow& window) {
        return std::make_unique<RecordingTrayOwner>(window, m_log);
    };
    makePanel<MainWindow>(ChromeKind::Main);
    makePanel<NotesPanel>(ChromeKind::Notes);
    makePanel<AddressPanel>(ChromeKind::Address);
    makePanel<PasswordPanel>(ChromeKind::Password);
    m_test->program.windows.registerMaker<ReminderPanel>(
        [this] { return std::make_unique<FakeReminderPanel>(m_test->program, m_log); });
    m_test->program.windows.registerMaker<StartWindow>(
        [this] { return std::make_unique<FakeStart>(u"frmStart"_s, m_log); });
    registerLogged<LettersWindow>(m_test->program, u"frmpisma"_s, m_log);
    registerLogged<PrintWindow>(m_test->program, u"frmPrint"_s, m_log);
    registerLogged<AlarmSetDialog>(m_test->program, u"frmAlSet"_s, m_log);
}

void ChromeWindowTest::cleanup() {
    m_test.reset();
}

ChromeWindow& ChromeWindowTest::window(ChromeKind kind) {
    Windows& windows = m_test->program.windows;
    switch (kind) {
    case ChromeKind::Main:
        return static_cast<LoggedPanel<MainWindow>&>(windows.get<MainWindow>());
    case ChromeKind::Reminder:
        return static_cast<FakeReminderPanel&>(windows.get<ReminderPanel>());
    case ChromeKind::Notes:
        return static_cast<LoggedPanel<NotesPanel>&>(windows.get<NotesPanel>());
    case ChromeKind::Address:
        return static_cast<LoggedPanel<AddressPanel>&>(windows.get<AddressPanel>());
    case ChromeKind::Password:
        return static_cast<LoggedPanel<PasswordPanel>&>(windows.get<PasswordPanel>());
    }
    Q_UNREACHABLE();
}

ChromeWindow& ChromeWindowTest::show(ChromeKind kind) {
    ChromeWindow& shown = window(kind);
    shown.Show();
    m_log.clear();
    return shown;
}

void ChromeWindowTest::thePointerOnAnImageButtonGivesItItsHoverPicture_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("mini") << u"imgMini"_s;
    QTest::newRow("exit") << u"imgExit"_s;
    QTest::newRow("help") << u"imgHelp"_s;
}

void ChromeWindowTest::thePointerOnAnImageButtonGivesItItsHoverPicture() {
    QFETCH(QString, name);
    ChromeWindow& main = show(ChromeKind::Main);
    Image* button = image(main, name);
    const Image* hover = image(main, name + u'a');
    const Image* normal = image(main, name + u'b');
    QVERIFY(hover != nullptr && normal != nullptr);
    QVERIFY(!hover->isVisible() && !normal->isVisible());
    QVERIFY(hover->Picture() != normal->Picture());
    QVERIFY(button->Picture() == normal->Picture());
    Pointer(*button).move({5, 5});
    QVERIFY(button->Picture() == hover->Picture());
}

void ChromeWindowTest::movingFromExitStraightToMiniGivesExitItsNormalPictureBack() {
    ChromeWindow& main = show(ChromeKind::Main);
    Pointer(*image(main, u"imgExit"_s)).move({5, 5});
    Pointer(*image(main, u"imgMini"_s)).move({5, 5});
    QVERIFY(image(main, u"imgExit"_s)->Picture() == image(main, u"imgExitb"_s)->Picture());
    QVERIFY(image(main, u"imgMini"_s)->Picture() == image(main, u"imgMinia"_s)->Picture());
    Pointer(*image(main, u"imgHelp"_s)).move({5, 5});
    QVERIFY(image(main, u"imgMini"_s)->Picture() == image(main, u"imgMinib"_s)->Picture());
    Pointer(*image(main, u"imgExit"_s)).move({5, 5});
    QVERIFY(image(main, u"imgHelp"_s)->Picture() == image(main, u"imgHelpb"_s)->Picture());
}

void ChromeWindowTest::theBellsLookDifferentUnderThePointer() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        for (const QString& name : {u"imgSet"_s, u"imgStop"_s}) {
            Image* bell = image(shown, name);
            const QImage normal = bell->grab().toImage();
            Pointer(*bell).enter();
            QVERIFY(bell->grab().toImage() != normal);
            Pointer(*bell).leave();
            QCOMPARE(bell->grab().toImage(), normal);
        }
        shown.Hide();
    }
}

void ChromeWindowTest::movingOverTheFormGivesNormalPicturesBack() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        for (const QString& name : {u"imgMini"_s, u"imgExit"_s, u"imgHelp"_s}) {
            Image* button = image(shown, name);
            Pointer(*button).move({5, 5});
            Pointer(*image(shown, shown.row().background)).move({3, 60});
            QVERIFY(button->Picture() == image(shown, name + u'b')->Picture());
            Pointer(*button).move({5, 5});
            Pointer(shown).move({3, 60});
            QVERIFY(button->Picture() == image(shown, name + u'b')->Picture());
        }
        shown.Hide();
    }
}

void ChromeWindowTest::idleMovesRedrawNothing() {
    ChromeWindow& main = show(ChromeKind::Main);
    QCoreApplication::processEvents();
    PaintCount paints;
    for (const QString& name : {u"imgMini"_s, u"imgExit"_s, u"imgHelp"_s})
        image(main, name)->installEventFilter(&paints);
    for (int x = 3; x < 20; ++x)
        Pointer(main).move({static_cast<qreal>(x), 60});
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    Pointer(*image(main, u"imgExit"_s)).move({5, 5});
    QTRY_COMPARE(paints.count, 1);
}

void ChromeWindowTest::leavingAnImageButtonForAnythingGivesItsNormalPictureBack() {
    ChromeWindow& main = show(ChromeKind::Main);
    for (const QString& name : {u"imgMini"_s, u"imgExit"_s, u"imgHelp"_s}) {
        Pointer pointer(*image(main, name));
        pointer.move({5, 5});
        pointer.leave();
        QVERIFY(image(main, name)->Picture() == image(main, name + u'b')->Picture());
    }
}

void ChromeWindowTest::hidingTheWindowGivesNormalPicturesBack() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        Pointer(*image(shown, u"imgMini"_s)).move({5, 5});
        shown.Hide();
        QVERIFY(image(shown, u"imgMini"_s)->Picture() == image(shown, u"imgMinib"_s)->Picture());
    }
}

void ChromeWindowTest::toolTipsAreThoseOfTheTable() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = window(kind);
        const bool panel = kind != ChromeKind::Main;
        QCOMPARE(image(shown, u"imgMini"_s)->toolTip(), u"Minimize to Tray"_s);
        QCOMPARE(image(shown, u"imgExit"_s)->toolTip(), u"Close"_s);
        QCOMPARE(image(shown, u"imgHelp"_s)->toolTip(), panel ? u"Help/Options"_s : u"Help"_s);
        QCOMPARE(image(shown, u"imgSet"_s)->toolTip(), panel ? u" Set alarm "_s : u" Set Alarm "_s);
        QCOMPARE(image(shown, u"imgStop"_s)->toolTip(), u" STOP "_s);
    }
}

void ChromeWindowTest::helpPopsUpTheHelpMenuOnTheLeftPressAlone() {
    Pointer(*image(show(ChromeKind::Main), u"imgHelp"_s)).press(); // nobody owns the menus
    window(ChromeKind::Main).Hide();
    m_test->program.windows.registerMaker<PopupMenus>(
        [this] { return std::make_unique<FakeMenus>(u"frmdel1"_s, m_log); });
    auto& menus = static_cast<FakeMenus&>(m_test->program.windows.get<PopupMenus>());
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        Image* help = image(shown, u"imgHelp"_s);
        Pointer(*help).press({5, 5}, Qt::RightButton);
        QCOMPARE(menus.popped, QStringList());
        Pointer(*help).press();
        QCOMPARE(std::exchange(menus.popped, {}), QStringList{u"mnuhelp"_s});
        shown.Hide();
    }
}

void ChromeWindowTest::theHelpMenuEndsTheHover() {
    m_test->program.windows.registerMaker<PopupMenus>(
        [this] { return std::make_unique<FakeMenus>(u"frmdel1"_s, m_log); });
    ChromeWindow& main = show(ChromeKind::Main);
    Pointer pointer(*image(main, u"imgHelp"_s));
    pointer.move({5, 5});
    QVERIFY(image(main, u"imgHelp"_s)->Picture() == image(main, u"imgHelpa"_s)->Picture());
    pointer.press();
    QVERIFY(image(main, u"imgHelp"_s)->Picture() == image(main, u"imgHelpb"_s)->Picture());
}

void ChromeWindowTest::theClockIsSetWhenTheWindowShows() {
    ChromeWindow& main = show(ChromeKind::Main);
    QCOMPARE(label(main, u"lblVreme"_s)->Caption(), u"10 : 24 : 36"_s);
    main.Hide();
    m_test->clock.advanceSeconds(90);
    main.Show();
    QCOMPARE(label(main, u"lblVreme"_s)->Caption(), u"10 : 26 : 06"_s);
}

void ChromeWindowTest::theClockFollowsItsTimerInTheChosenFormat() {
    ChromeWindow& main = show(ChromeKind::Main);
    auto* timer = main.findChild<AlignedTimer*>(u"Timer23"_s);
    m_test->clock.advanceSeconds(1);
    emit timer->tick();
    QCOMPARE(label(main, u"lblVreme"_s)->Caption(), u"10 : 24 : 37"_s);
    m_test->program.state.timeFormatIndex = 2;
    emit timer->tick();
    QCOMPARE(label(main, u"lblVreme"_s)->Caption(), u"10 : 24 : 37 AM"_s);
}

void ChromeWindowTest::aFormatOutsideTheTableGivesAnEmptyClock() {
    m_test->program.state.timeFormatIndex = 13;
    ChromeWindow& main = show(ChromeKind::Main);
    QCOMPARE(label(main, u"lblVreme"_s)->Caption(), QString());
}

void ChromeWindowTest::theDateStandsInTheClockFromTheHoverToTheNextTick() {
    ChromeWindow& main = show(ChromeKind::Main);
    Label* clock = label(main, u"lblVreme"_s);
    Pointer(*clock).move({5, 5});
    QCOMPARE(clock->Caption(), u"Saturday, March 14, 2026"_s);
    emit main.findChild<AlignedTimer*>(u"Timer23"_s)->tick();
    QCOMPARE(clock->Caption(), u"10 : 24 : 36"_s);
    Pointer(*clock).move({6, 5});
    QCOMPARE(clock->Caption(), u"Saturday, March 14, 2026"_s);
}

void ChromeWindowTest::eachClockHasItsTimerAndItsInterval() {
    const QMap<ChromeKind, QString> names{{ChromeKind::Main, u"Timer23"_s},
                                          {ChromeKind::Reminder, u"Timer2"_s},
                                          {ChromeKind::Notes, u"Timer3"_s},
                                          {ChromeKind::Address, u"Timer4"_s},
                                          {ChromeKind::Password, u"Timer5"_s}};
    for (const ChromeKind kind : AllKinds) {
        QVERIFY(window(kind).findChild<AlignedTimer*>(names[kind]) != nullptr);
        QCOMPARE(chromeRow(kind).clockInterval, kind == ChromeKind::Notes ? 500 : 1000);
    }
}

void ChromeWindowTest::aHiddenWindowsClockSleeps() {
    ChromeWindow& main = window(ChromeKind::Main);
    const auto* timer = main.findChild<AlignedTimer*>(u"Timer23"_s);
    QVERIFY(!timer->isActive());
    main.Show();
    QVERIFY(timer->isActive());
    main.Hide();
    QVERIFY(!timer->isActive());
}

void ChromeWindowTest::aTimeThatCannotBeToldLeavesTheClockAsItIs() {
    ChromeWindow& main = show(ChromeKind::Main);
    m_test->clock.set(QDateTime());
    emit main.findChild<AlignedTimer*>(u"Timer23"_s)->tick();
    QCOMPARE(label(main, u"lblVreme"_s)->Caption(), u"10 : 24 : 36"_s);
    QCOMPARE(m_test->boxes.asked.size(), 0);
    QVERIFY(!programHasEnded());
}

void ChromeWindowTest::setOpensTheAlarmDialogNotModal() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        Pointer pointer(*image(shown, u"imgSet"_s));
        pointer.press();
        QVERIFY(m_test->program.windows.loaded<AlarmSetDialog>() == nullptr);
        pointer.release();
        Form& dialog = m_test->program.windows.get<AlarmSetDialog>().form();
        QVERIFY(dialog.isVisible());
        QVERIFY(!dialog.isModal());
        m_test->program.windows.unload<AlarmSetDialog>();
        shown.Hide();
    }
}

void ChromeWindowTest::activatingWhileArmedShowsTheAlarm() {
    for (const ChromeKind kind : AllKinds) {
        setAlarm();
        ChromeWindow& shown = show(kind);
        QCOMPARE(shown.alarmShown(), u"07:30:00"_s);
        QVERIFY(label(shown, u"lblAlarm"_s)->isVisible());
        QVERIFY(!image(shown, u"imgSet"_s)->isVisible());
        QVERIFY(image(shown, u"imgStop"_s)->isVisible());
        shown.Hide();
    }
}

void ChromeWindowTest::anAlarmShownHereIsNotShownAgainAtTheNextActivation() {
    setAlarm();
    ChromeWindow& main = show(ChromeKind::Main);
    m_test->program.state.alarmTimeText = u"08:00:00"_s;
    main.Hide();
    main.Show();
    QCOMPARE(main.alarmShown(), u"07:30:00"_s);
    // Once the alarm was cleared here, the next one is shown.
    m_test->program.state.alarmArmed = false;
    main.Hide();
    main.Show();
    QCOMPARE(main.alarmShown(), QString());
    m_test->program.state.alarmArmed = true;
    main.Hide();
    main.Show();
    QCOMPARE(main.alarmShown(), u"08:00:00"_s);
}

void ChromeWindowTest::showingTheAlarmBringsAHiddenDisplayBack() {
    auto& role = m_test->program.windows.get<MainWindow>();
    ChromeWindow& main = show(ChromeKind::Main);
    label(main, u"lblAlarm"_s)->setVisible(false);
    setAlarm();
    role.SetAlarm0();
    QVERIFY(label(main, u"lblAlarm"_s)->isVisible());
    QCOMPARE(main.alarmShown(), u"07:30:00"_s);
}

void ChromeWindowTest::activatingWhileIdleClearsTheDisplayAndTheTray() {
    setAlarm();
    ChromeWindow& main = show(ChromeKind::Main);
    m_test->program.state.alarmArmed = false;
    main.Hide();
    m_log.clear();
    main.Show();
    QCOMPARE(main.alarmShown(), QString());
    QVERIFY(image(main, u"imgSet"_s)->isVisible());
    QVERIFY(!image(main, u"imgStop"_s)->isVisible());
    QCOMPARE(m_log.count(u"TrayReset"_s), 1);
}

void ChromeWindowTest::aFailureAtActivationIsPassedOver() {
    m_test->program.makeTrayOwner = [](ChromeWindow&) { return std::make_unique<FailingTray>(); };
    ChromeWindow& main = show(ChromeKind::Main);
    QVERIFY(main.isVisible());
    QVERIFY(!programHasEnded());
    QCOMPARE(m_test->boxes.asked.size(), 0);
}

void ChromeWindowTest::stopDisarms() {
    setAlarm();
    ChromeWindow& main = show(ChromeKind::Main);
    Pointer pointer(*image(main, u"imgStop"_s));
    pointer.press();
    pointer.release();
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(main.alarmShown(), QString());
    QVERIFY(image(main, u"imgSet"_s)->isVisible());
    QVERIFY(!image(main, u"imgStop"_s)->isVisible());
    QCOMPARE(m_test->program.state.alarmTimeText, u"07:30:00"_s);
    QVERIFY(!m_log.contains(u"TrayReset"_s));
    // The window has forgotten that it showed an alarm.
    m_test->program.state.alarmArmed = true;
    main.Hide();
    main.Show();
    QCOMPARE(main.alarmShown(), u"07:30:00"_s);
}

void ChromeWindowTest::aCaptionThatChangesMovesTheImagesAndTheMirror() {
    ChromeWindow& main = show(ChromeKind::Main);
    label(main, u"lblAlarm"_s)->setCaption(u"09:15:00"_s);
    QCOMPARE(m_test->program.state.alarmCaptionMirror, u"09:15:00"_s);
    QVERIFY(!image(main, u"imgSet"_s)->isVisible());
    QVERIFY(image(main, u"imgStop"_s)->isVisible());
    label(main, u"lblAlarm"_s)->setCaption({});
    QCOMPARE(m_test->program.state.alarmCaptionMirror, QString());
    QVERIFY(image(main, u"imgSet"_s)->isVisible());
    QVERIFY(!image(main, u"imgStop"_s)->isVisible());
}

void ChromeWindowTest::oneBellHandsTheKeyboardOnToTheOther() {
    setAlarm();
    m_test->program.state.alarmArmed = false;
    ChromeWindow& main = show(ChromeKind::Main);
    QApplication::setActiveWindow(&main);
    image(main, u"imgSet"_s)->setFocus(Qt::TabFocusReason);
    // The dialog that sets the alarm has the keyboard meanwhile.
    QApplication::setActiveWindow(nullptr);
    m_test->program.state.alarmArmed = true;
    main.showAlarm();
    QCOMPARE(main.focusWidget(), image(main, u"imgStop"_s));
    QApplication::setActiveWindow(&main);
    QTest::keyClick(image(main, u"imgStop"_s), Qt::Key_Space);
    QVERIFY(!m_test->program.state.alarmArmed);
    QCOMPARE(main.focusWidget(), image(main, u"imgSet"_s));
}

void ChromeWindowTest::closingIsRefusedWhileTheAlarmIsShown() {
    setAlarm();
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        m_test->boxes.expect(u"The alarm is set.\nMinimaze program to system tray, or\ndisable "
                             "alarm before you quit."_s,
                             64, Answer::Ok);
        Pointer pointer(*image(shown, u"imgExit"_s));
        pointer.press();
        pointer.release();
        m_test->boxes.verifyAllAsked();
        QVERIFY(shown.isVisible());
        QVERIFY(!programHasEnded());
        QVERIFY(!m_log.contains(u"TrayBuild"_s));
        shown.Hide();
    }
}

void ChromeWindowTest::closingGoesToTheTrayWithoutAQuestionWhileStickersAreOpen() {
    m_test->program.state.StickerCount = 1;
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        shown.exitClick();
        QVERIFY(m_log.contains(u"TrayBuild"_s));
        QVERIFY(!shown.isVisible());
        QCOMPARE(m_test->boxes.asked.size(), 0);
    }
}

void ChromeWindowTest::closingNeverEndsTheProgramWhileStartIsOne() {
    m_test->setSetting(u"Reg"_s, u"Start"_s, u"1"_s);
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        QVERIFY(!endsTheProgram([&] { shown.exitClick(); }));
        QVERIFY(m_log.contains(u"TrayBuild"_s));
        QVERIFY(!shown.isVisible());
    }
}

void ChromeWindowTest::closingEndsTheProgramOtherwise() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        QVERIFY(endsTheProgram([&] { shown.exitClick(); }));
        QVERIFY(!m_log.contains(u"TrayBuild"_s));
    }
}

void ChromeWindowTest::closingLooksAtTheSettingEachTime() {
    ChromeWindow& main = show(ChromeKind::Main);
    m_test->setSetting(u"Reg"_s, u"Start"_s, u"1"_s);
    main.exitClick();
    QVERIFY(!programHasEnded());
    main.Show();
    m_test->setSetting(u"Reg"_s, u"Start"_s, u"0"_s);
    QVERIFY(endsTheProgram([&] { main.exitClick(); }));
}

void ChromeWindowTest::closingWritesNoSettings() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        QVERIFY(endsTheProgram([&] { shown.exitClick(); }));
        QCOMPARE(m_test->store.keyCount(), 0);
    }
}

void ChromeWindowTest::aPanelsOwnStepComesAfterTheAlarmsRefusalAndMayStay() {
    m_test->program.windows.registerMaker<NotesPanel>(
        [this] { return std::make_unique<StayingPanel>(m_test->program, m_log); });
    auto& panel = static_cast<StayingPanel&>(m_test->program.windows.get<NotesPanel>());
    panel.Show();
    QVERIFY(!endsTheProgram([&] { panel.exitClick(); }));
    QCOMPARE(panel.asked, 1);
    m_test->program.state.StickerCount = 1;
    panel.exitClick();
    QVERIFY(panel.isVisible());
    QCOMPARE(panel.asked, 2);
    setAlarm();
    panel.Hide();
    panel.Show();
    m_test->boxes.answer(Answer::Ok);
    panel.exitClick();
    QCOMPARE(panel.asked, 2);
}

void ChromeWindowTest::theWindowManagersCloseDoesWhatExitDoes() {
    ChromeWindow& main = show(ChromeKind::Main);
    m_test->program.state.StickerCount = 1;
    main.close();
    QVERIFY(m_log.contains(u"TrayBuild"_s));
    m_test->program.state.StickerCount = 0;
    main.Show();
    main.close(); // ends the program within the event, where the application meets it
    QVERIFY(programHasEnded());
}

void ChromeWindowTest::eachWindowGoesToTheTrayInItsOwnOrder_data() {
    QTest::addColumn<ChromeKind>("kind");
    QTest::addColumn<QList<ChromeStep>>("steps");
    QTest::addColumn<int>("number");
    using enum ChromeStep;
    QTest::newRow("frmnotes") << ChromeKind::Main
                              << QList<ChromeStep>{TimerOff, NoteWindow, HideWindow, TrayBuild}
                              << 0;
    QTest::newRow("frmnotes1") << ChromeKind::Reminder
                               << QList<ChromeStep>{TrayBuild, TimerOff, NoteWindow} << 1;
    QTest::newRow("frmnotes2") << ChromeKind::Notes
                               << QList<ChromeStep>{TrayBuild, TimerOff, UnloadLetters, NoteWindow}
                               << 2;
    QTest::newRow("frmnotes3") << ChromeKind::Address
                               << QList<ChromeStep>{TrayBuild, UnloadPrint, NoteWindow, TimerOff}
                               << 3;
    QTest::newRow("frmnotes4") << ChromeKind::Password
                               << QList<ChromeStep>{TimerOff, TrayBuild, NoteWindow} << 4;
}

void ChromeWindowTest::eachWindowGoesToTheTrayInItsOwnOrder() {
    QFETCH(ChromeKind, kind);
    QFETCH(QList<ChromeStep>, steps);
    QFETCH(int, number);
    ChromeWindow& shown = show(kind);
    m_test->program.windows.get<LettersWindow>();
    m_test->program.windows.get<PrintWindow>();
    QVERIFY(m_test->program.windows.get<StartWindow>().timer23Enabled());
    m_test->program.state.minimisedFrom = -1;
    m_log.clear();
    Pointer pointer(*image(shown, u"imgMini"_s));
    pointer.press();
    pointer.release();
    QCOMPARE(QList<ChromeStep>(shown.row().minimising.begin(), shown.row().minimising.end()),
             steps);
    QCOMPARE(m_test->program.state.minimisedFrom, number);
    QVERIFY(!m_test->program.windows.get<StartWindow>().timer23Enabled());
    QVERIFY(!shown.isVisible());
    QCOMPARE(m_log.count(u"TrayBuild"_s), 1);
    QCOMPARE(m_log.contains(u"unload frmpisma"_s), kind == ChromeKind::Notes);
    QCOMPARE(m_log.contains(u"unload frmPrint"_s), kind == ChromeKind::Address);
}

void ChromeWindowTest::withoutATraySideTheWindowStaysAsItIs() {
    m_test->program.makeTrayOwner = nullptr;
    ChromeWindow& main = show(ChromeKind::Main);
    main.miniClick();
    QVERIFY(main.isVisible());
    QVERIFY(m_test->program.windows.get<StartWindow>().timer23Enabled());
}

void ChromeWindowTest::piciResetsTheTrayOnlyWhileTheProgramIsInIt() {
    auto& role = m_test->program.windows.get<MainWindow>();
    m_log.clear();
    role.Pici();
    QVERIFY(!m_log.contains(u"TrayReset"_s));
    m_test->program.state.trayActive = true;
    role.Pici();
    QCOMPARE(m_log.count(u"TrayReset"_s), 1);
}

void ChromeWindowTest::panelLabelsCarryTheNamesOfTheirTargets() {
    const QMap<ChromeKind, QStringList> captions{
        {ChromeKind::Reminder, {u"REMINDER"_s, u"Notes"_s, u"Address"_s, u"Password"_s}},
        {ChromeKind::Notes, {u"NOTES"_s, u"Reminder"_s, u"Address"_s, u"Password"_s}},
        {ChromeKind::Address, {u"ADDRESS"_s, u"Reminder"_s, u"Notes"_s, u"Password"_s}},
        {ChromeKind::Password, {u"PASSWORD"_s, u"Reminder"_s, u"Notes"_s, u"Address"_s}}};
    for (auto row = captions.begin(); row != captions.end(); ++row) {
        ChromeWindow& panel = window(row.key());
        QStringList shown;
        for (const QString& name : {u"lblRem"_s, u"lblNot"_s, u"lblAdd"_s, u"lblPass"_s})
            shown << label(panel, name)->Caption();
        QCOMPARE(shown, row.value());
    }
    QVERIFY(label(window(ChromeKind::Main), u"lblNot"_s) == nullptr);
}

void ChromeWindowTest::aPanelLabelTellsThatThePointerIsOnIt() {
    ChromeWindow& panel = show(ChromeKind::Reminder);
    for (const QString& name : {u"lblNot"_s, u"lblAdd"_s, u"lblPass"_s}) {
        Label* way = label(panel, name);
        const QColor atRest = way->palette().color(QPalette::WindowText);
        Pointer pointer(*way);
        pointer.enter();
        QVERIFY(way->palette().color(QPalette::WindowText) != atRest);
        pointer.leave();
        QCOMPARE(way->palette().color(QPalette::WindowText), atRest);
    }
}

void ChromeWindowTest::aPanelLabelLeadsToItsTarget_data() {
    QTest::addColumn<ChromeKind>("from");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("log");
    const auto row = [](ChromeKind from, const char* fromName, const char* label,
                        const QStringList& log) {
        QTest::addRow("%s %s", fromName, label) << from << QString::fromLatin1(label) << log;
    };
    row(ChromeKind::Reminder, "frmnotes1", "lblNot", {u"hide frmnotes1"_s, u"show frmnotes2"_s});
    row(ChromeKind::Reminder, "frmnotes1", "lblAdd", {u"hide frmnotes1"_s, u"show frmnotes3"_s});
    row(ChromeKind::Reminder, "frmnotes1", "lblPass", {u"hide frmnotes1"_s, u"show frmnotes4"_s});
    row(ChromeKind::Notes, "frmnotes2", "lblNot",
        {u"hide frmnotes2"_s, u"unload frmpisma"_s, u"show frmnotes1"_s});
    row(ChromeKind::Notes, "frmnotes2", "lblAdd",
        {u"hide frmnotes2"_s, u"unload frmpisma"_s, u"show frmnotes3"_s});
    row(ChromeKind::Notes, "frmnotes2", "lblPass",
        {u"hide frmnotes2"_s, u"unload frmpisma"_s, u"show frmnotes4"_s});
    row(ChromeKind::Address, "frmnotes3", "lblNot",
        {u"unload frmPrint"_s, u"hide frmnotes3"_s, u"show frmnotes1"_s});
    row(ChromeKind::Address, "frmnotes3", "lblAdd",
        {u"unload frmPrint"_s, u"hide frmnotes3"_s, u"show frmnotes2"_s});
    row(ChromeKind::Address, "frmnotes3", "lblPass",
        {u"unload frmPrint"_s, u"hide frmnotes3"_s, u"show frmnotes4"_s});
    row(ChromeKind::Password, "frmnotes4", "lblNot", {u"hide frmnotes4"_s, u"show frmnotes1"_s});
    row(ChromeKind::Password, "frmnotes4", "lblAdd", {u"hide frmnotes4"_s, u"show frmnotes2"_s});
    row(ChromeKind::Password, "frmnotes4", "lblPass", {u"hide frmnotes4"_s, u"show frmnotes3"_s});
}

void ChromeWindowTest::aPanelLabelLeadsToItsTarget() {
    QFETCH(ChromeKind, from);
    QFETCH(QString, name);
    QFETCH(QStringList, log);
    ChromeWindow& panel = show(from);
    m_test->program.windows.get<LettersWindow>();
    m_test->program.windows.get<PrintWindow>();
    m_log.clear();
    Pointer pointer(*label(panel, name));
    pointer.press();
    pointer.release();
    m_log.removeAll(u"TrayReset"_s);
    QCOMPARE(m_log, log);
}

void ChromeWindowTest::theReminderPanelsLabelsAnswerThePressOfAnyButton() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        ChromeWindow& panel = show(ChromeKind::Reminder);
        Pointer(*label(panel, u"lblNot"_s)).press({5, 5}, button);
        QVERIFY(m_log.contains(u"show frmnotes2"_s));
        window(ChromeKind::Notes).Hide();
    }
}

void ChromeWindowTest::theOtherPanelsLabelsAnswerAClickOfTheLeftButtonAlone() {
    for (const ChromeKind kind : {ChromeKind::Notes, ChromeKind::Address, ChromeKind::Password}) {
        ChromeWindow& panel = show(kind);
        Pointer pointer(*label(panel, u"lblNot"_s));
        pointer.press({5, 5}, Qt::RightButton);
        pointer.release({5, 5}, Qt::RightButton);
        pointer.press();
        QVERIFY(panel.isVisible());
        pointer.release();
        QVERIFY(!panel.isVisible());
        QVERIFY(m_log.contains(u"show frmnotes1"_s));
        window(ChromeKind::Reminder).Hide();
    }
}

void ChromeWindowTest::aTargetThatNobodyMakesDoesNotOpen() {
    m_test = std::make_unique<TestProgram>();
    makePanel<NotesPanel>(ChromeKind::Notes);
    ChromeWindow& panel = show(ChromeKind::Notes);
    Pointer pointer(*label(panel, u"lblNot"_s));
    pointer.press();
    pointer.release();
    QVERIFY(panel.isVisible());
    QCOMPARE(m_log, QStringList());
}

void ChromeWindowTest::thePanelOpensWhereTheWindowStood() {
    ChromeWindow& notes = show(ChromeKind::Notes);
    notes.move(20, 30);
    Pointer pointer(*label(notes, u"lblPass"_s));
    pointer.press();
    pointer.release();
    QCOMPARE(window(ChromeKind::Password).pos(), QPoint(20, 30));
}

void ChromeWindowTest::theWindowHasTheSizeOfItsPicture() {
    QCOMPARE(show(ChromeKind::Main).size(), QSize(320, 483));
    QCOMPARE(show(ChromeKind::Reminder).size(), QSize(702, 452));
    QCOMPARE(show(ChromeKind::Notes).size(), QSize(700, 450));
    QCOMPARE(show(ChromeKind::Address).size(), QSize(702, 452));
    ChromeWindow& password = show(ChromeKind::Password);
    QCOMPARE(password.size(), QSize(700, 450));
    image(password, password.row().background)->resize(600, 400);
    password.resize(10, 10);
    QResizeEvent resized(QSize(10, 10), password.size());
    QCoreApplication::sendEvent(&password, &resized);
    QCOMPARE(password.size(), QSize(600, 400));
}

void ChromeWindowTest::aMinimisedWindowKeepsItsSize() {
    ChromeWindow& main = show(ChromeKind::Main);
    image(main, main.row().background)->resize(400, 600);
    QResizeEvent resized(main.size(), main.size());
    main.setWindowState(Qt::WindowMinimized);
    QCoreApplication::sendEvent(&main, &resized);
    QCOMPARE(main.size(), QSize(320, 483));
    main.setWindowState(Qt::WindowNoState);
    QCoreApplication::sendEvent(&main, &resized);
    QCOMPARE(main.size(), QSize(400, 600));
}

void ChromeWindowTest::aWindowWithoutFrameHasATitleAndIsAnOrdinaryWindow() {
    for (const ChromeKind kind : AllKinds) {
        const ChromeWindow& shown = window(kind);
        QCOMPARE(shown.windowTitle(), u"Orvalis"_s);
        QCOMPARE(shown.windowType(), Qt::Window);
        QVERIFY(shown.windowFlags().testFlag(Qt::FramelessWindowHint));
    }
}

void ChromeWindowTest::draggingTheBackgroundMovesTheWindow() {
    ChromeWindow& main = show(ChromeKind::Main);
    main.move(100, 50);
    QTest::mousePress(&main, Qt::LeftButton, {}, {10, 140});
    Pointer(main).move({40, 160}, Qt::LeftButton);
    QCOMPARE(main.pos(), QPoint(130, 70));
    Pointer(main).release({10, 140});
    Pointer(main).move({90, 90});
    QCOMPARE(main.pos(), QPoint(130, 70));
}

void ChromeWindowTest::draggingTheBackgroundsPictureMovesTheWindow() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = show(kind);
        shown.move(60, 50);
        Image* picture = image(shown, shown.row().background);
        Pointer(*picture).press({10, 140});
        Pointer(*picture).move({40, 160}, Qt::LeftButton);
        QCOMPARE(shown.pos(), QPoint(90, 70));
        Pointer(*picture).release({10, 140});
        Pointer(*picture).press({10, 140}, Qt::RightButton);
        Pointer(*picture).move({40, 160}, Qt::RightButton);
        QCOMPARE(shown.pos(), QPoint(90, 70));
        shown.Hide();
    }
}

void ChromeWindowTest::anotherButtonDoesNotDrag() {
    ChromeWindow& main = show(ChromeKind::Main);
    main.move(100, 50);
    Pointer(main).press({10, 140}, Qt::RightButton);
    Pointer(main).move({40, 160}, Qt::RightButton);
    QCOMPARE(main.pos(), QPoint(100, 50));
}

void ChromeWindowTest::everyControlCarriesItsName() {
    for (const ChromeKind kind : AllKinds) {
        ChromeWindow& shown = window(kind);
        for (const QString& name :
             {u"imgMini"_s, u"imgMinia"_s, u"imgMinib"_s, u"imgExit"_s, u"imgExita"_s,
              u"imgExitb"_s, u"imgHelp"_s, u"imgHelpa"_s, u"imgHelpb"_s, u"imgSet"_s, u"imgStop"_s,
              u"imgIcon(0)"_s, u"imgIcon(1)"_s, shown.row().background})
            QVERIFY2(image(shown, name) != nullptr, qPrintable(name));
        QVERIFY(!shown.trayIcon(0)->isVisible());
        QVERIFY(shown.trayIcon(0)->Picture() != shown.trayIcon(1)->Picture());
    }
}

ORVALIS_TEST_MAIN_WITH(Application, ChromeWindowTest)
#include "chrome_window_test.moc"
