// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "core/alarm_label.h"
#include "core/clock_label.h"
#include "core/main_window.h"
#include "skin/skin.h"
#include "support/contrast.h"
#include "support/pointer_events.h"
#include "support/role_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"

#include <QDirIterator>
#include <QFontDatabase>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// A font file whose family is the clock font's: an ordinary one under another name.
QByteArray clockFontFile() {
    QDirIterator files(u"/usr/share/fonts"_s, {u"LiberationSans-Regular.ttf"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    QFile file(files.next());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto twoBytesEach = [](const QByteArray& text) {
        QByteArray wide;
        for (const char c : text)
            wide.append('\0').append(c);
        return wide;
    };
    const QByteArray family = "Liberation Sans";
    const QByteArray clock = QByteArray("Digital SF").leftJustified(family.size());
    return file.readAll().replace(family, clock).replace(twoBytesEach(family), twoBytesEach(clock));
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void theKeyboardGoesFromThePanelsToTheAlarmAndTheWindowsButtons();
    void init();
    void eachOpeningPictureShowsItsPanelAndThenHidesTheWindow_data();
    void eachOpeningPictureShowsItsPanelAndThenHidesTheWindow();
    void anyButtonOpensAPanelOnItsPress();
    void aPanelThatNobodyMakesDoesNotOpenAndTheWindowStays();
    void thePanelHasTheSameCentreAsTheWindow();
    void theWindowIsDrawnAtItsDesignSize();
    void theClockFontIsArialsStandInAtSixteenPointsBeforeTheScreensFactor();
    void aClockFontThatTheMachineHasIsUsed();
    void aClockFontThatTheMachineLacksIsReplaced();
    void theAlarmsImagesKeepTheirSizeAndMove();
    void aWiderScreenGivesSmallerPointSizes();
    void wordsOfTheFourButtonsStandOut();
    void theBellStaysWhereItIs();
    void theArmedTimeIsLargeWithAWordBesideIt();
    void theLabelWithoutBehaviourIsThere();
    void openingPicturesTellTheirPanelsToThoseWhoCannotSeeThem();
    void aLongTextInTheClockIsNotCutOff();

private:
    frmnotes& window() { return static_cast<frmnotes&>(m_test->program.windows.get<MainWindow>()); }
    template <class Role>
    void makePanel(ChromeKind kind) {
        m_test->program.windows.registerMaker<Role>([this, kind] {
            return std::make_unique<LoggedPanel<Role>>(m_test->program, kind, m_log);
        });
    }
    void makePanels();

    std::unique_ptr<TestProgram> m_test;
    QStringList m_log;
};

void MainWindowTest::init() {
    m_log.clear();
    m_test = std::make_unique<TestProgram>();
    m_test->screen.screenSize = QSize(800, 600);
    m_test->program.windows.registerMaker<MainWindow>(
        [this] { return std::make_unique<frmnotes>(m_test->program); });
}

void MainWindowTest::makePanels() {
    makePanel<NotesPanel>(ChromeKind::Notes);
    makePanel<AddressPanel>(ChromeKind::Address);
    makePanel<PasswordPanel>(ChromeKind::Password);
    m_test->program.windows.registerMaker<ReminderPanel>(
        [this] { return std::make_unique<FakeReminderPanel>(m_test->program, m_log); });
}

void MainWindowTest::theKeyboardGoesFromThePanelsToTheAlarmAndTheWindowsButtons() {
    frmnotes& main = window();
    main.Show();
    QVERIFY(QTest::qWaitForWindowActive(&main));
    QStringList reached;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(main.focusWidget() ? main.focusWidget() : &main, Qt::Key_Tab);
        reached << main.focusWidget()->objectName();
    }
    QCOMPARE(reached,
             (QStringList{u"imgopen1"_s, u"imgopen2"_s, u"imgopen3"_s, u"imgopen4"_s, u"imgSet"_s,
                          u"imgMini"_s, u"imgHelp"_s, u"imgExit"_s, u"imgopen1"_s}));
}

void MainWindowTest::eachOpeningPictureShowsItsPanelAndThenHidesTheWindow_data() {
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("panel");
    QTest::newRow("1") << u"imgopen1"_s << u"frmnotes1"_s;
    QTest::newRow("2") << u"imgopen2"_s << u"frmnotes2"_s;
    QTest::newRow("3") << u"imgopen3"_s << u"frmnotes3"_s;
    QTest::newRow("4") << u"imgopen4"_s << u"frmnotes4"_s;
}

void MainWindowTest::eachOpeningPictureShowsItsPanelAndThenHidesTheWindow() {
    QFETCH(QString, picture);
    QFETCH(QString, panel);
    makePanels();
    window().Show();
    bool shownWhilePanelCame = false;
    auto* opener = window().findChild<Image*>(picture);
    // The panel is on the screen before the window goes.
    class Watch final : public QObject {
    public:
        Watch(frmnotes& watched, bool& seen)
            : m_watched(watched)
            , m_seen(seen) {}
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Show)
                m_seen = m_watched.isVisible();
            return false;
        }

    private:
        frmnotes& m_watched;
        bool& m_seen;
    };
    Watch watch(window(), shownWhilePanelCame);
    for (Form* form : {&m_test->program.windows.get<ReminderPanel>().form(),
                       &m_test->program.windows.get<NotesPanel>().form(),
                       &m_test->program.windows.get<AddressPanel>().form(),
                       &m_test->program.windows.get<PasswordPanel>().form()})
        form->installEventFilter(&watch);
    m_log.clear();
    Pointer(*opener).press();
    m_log.removeAll(u"TrayReset"_s);
    QCOMPARE(m_log, QStringList{u"show "_s + panel});
    QVERIFY(shownWhilePanelCame);
    QVERIFY(!window().isVisible());
}

void MainWindowTest::anyButtonOpensAPanelOnItsPress() {
    makePanels();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        window().Show();
        Pointer(*window().findChild<Image*>(u"imgopen2"_s)).press({5, 5}, button);
        QVERIFY(!window().isVisible());
        Form& panel = m_test->program.windows.get<NotesPanel>().form();
        QVERIFY(panel.isVisible());
        panel.Hide();
    }
}

void MainWindowTest::aPanelThatNobodyMakesDoesNotOpenAndTheWindowStays() {
    window().Show();
    for (const QString& name : {u"imgopen1"_s, u"imgopen2"_s, u"imgopen3"_s, u"imgopen4"_s})
        Pointer(*window().findChild<Image*>(name)).press();
    QVERIFY(window().isVisible());
}

void MainWindowTest::thePanelHasTheSameCentreAsTheWindow() {
    makePanels();
    window().Show();
    window().move(200, 50);
    Pointer(*window().findChild<Image*>(u"imgopen4"_s)).press();
    const Form& panel = m_test->program.windows.get<PasswordPanel>().form();
    QCOMPARE(panel.pos(), QPoint(200 - (700 - 320) / 2, 50 + (483 - 450) / 2));
}

void MainWindowTest::theWindowIsDrawnAtItsDesignSize() {
    window().Show();
    QCOMPARE(window().size(), QSize(320, 483));
    QCOMPARE(window().findChild<Image*>(u"Image5"_s)->geometry(), QRect(0, 0, 320, 483));
}

void MainWindowTest::theClockFontIsArialsStandInAtSixteenPointsBeforeTheScreensFactor() {
    const QFont font = window().findChild<ClockLabel*>(u"lblVreme"_s)->font();
    QCOMPARE(font.pointSize(), 16);
    QVERIFY(font.families().contains(u"Arial"_s));
}

void MainWindowTest::aClockFontThatTheMachineHasIsUsed() {
    const int font = QFontDatabase::addApplicationFontFromData(clockFontFile());
    QVERIFY(QFontDatabase::hasFamily(u"Digital SF"_s));
    const QFont used = window().findChild<ClockLabel*>(u"lblVreme"_s)->font();
    const QString drawnWith = QFontInfo(used).family();
    QVERIFY(QFontDatabase::removeApplicationFont(font));
    QCOMPARE(drawnWith, u"Digital SF"_s);
    QCOMPARE(used.pointSize(), 16);
}

void MainWindowTest::aClockFontThatTheMachineLacksIsReplaced() {
    ClockLabel label(u"lblVreme"_s, nullptr);
    label.setFont(QFont(u"Digital SF"_s, 12, QFont::Bold));
    label.useClockFont(16);
    QCOMPARE(label.font().families().constFirst(), u"Arial"_s);
    QCOMPARE(label.font().pointSize(), 16);
    QVERIFY(label.font().bold());
}

void MainWindowTest::theAlarmsImagesKeepTheirSizeAndMove() {
    // A background half as wide again as the design moves everything and makes it larger, but for
    // the two pictures beside the clock.
    frmnotes main(m_test->program);
    main.findChild<Image*>(u"Image5"_s)->resize(480, 725);
    main.load();
    const ChromeLayout& design = chromeLayout(ChromeKind::Main);
    for (const auto& [name, place] :
         {std::pair(u"imgSet"_s, design.set), std::pair(u"imgStop"_s, design.stop)}) {
        const QRect now = main.findChild<Image*>(name)->geometry();
        QCOMPARE(now.size(), place.size());
        QCOMPARE(now.topLeft(), place.topLeft() * 1.5);
    }
    QCOMPARE(main.findChild<Image*>(u"imgMini"_s)->size(), design.mini.size() * 1.5);
}

void MainWindowTest::aWiderScreenGivesSmallerPointSizes() {
    m_test->screen.screenSize = QSize(1600, 1200);
    QCOMPARE(window().findChild<ClockLabel*>(u"lblVreme"_s)->font().pointSize(), 8);
}

void MainWindowTest::wordsOfTheFourButtonsStandOut() {
    constexpr int Ratio = 4;
    constexpr QRect Words(30 * Ratio, 104 * Ratio, 86 * Ratio, 22 * Ratio);
    for (const QString& name :
         {u"open_reminder"_s, u"open_notes"_s, u"open_address"_s, u"open_password"_s})
        for (const QString& picture : {name, name + u"_hover"_s}) {
            const double ratio = textContrast(skin::pixmap(picture, Ratio).toImage().copy(Words));
            QVERIFY2(ratio >= ReadableContrast,
                     qPrintable(picture + u' ' + QString::number(ratio)));
        }
}

void MainWindowTest::theBellStaysWhereItIs() {
    frmnotes& main = window();
    main.Show();
    const QRect set = main.findChild<Image*>(u"imgSet"_s)->geometry();
    m_test->program.state.alarmArmed = true;
    m_test->program.state.alarmTimeText = u"07:30:00"_s;
    main.SetAlarm0();
    QCOMPARE(main.findChild<Image*>(u"imgStop"_s)->geometry(), set);
}

void MainWindowTest::theArmedTimeIsLargeWithAWordBesideIt() {
    frmnotes& main = window();
    main.Show();
    auto* clock = main.findChild<ClockLabel*>(u"lblVreme"_s);
    auto* alarm = main.findChild<AlarmLabel*>(u"lblAlarm"_s);
    const auto ink = [&main](const QRect& part) {
        const QImage drawn = drawnLarge(main, part);
        QRect bounds;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                if (qGray(drawn.pixel(x, y)) > 130)
                    bounds |= QRect(x, y, 1, 1);
        return bounds;
    };
    const QRect glass = clock->geometry() | alarm->geometry();
    const QRect idle = ink(glass);
    QVERIFY(std::abs(idle.center().y() - glass.height() * 4 / 2) <= 8);
    main.SetAlarm0();
    alarm->setCaption(u"07:30:00"_s);
    QCOMPARE(alarm->Caption(), u"07:30:00"_s);
    QCOMPARE(alarm->font().pointSize(), 11);
    const QRect armed = ink(alarm->geometry());
    // The time alone is narrower than both words.
    const int time = QFontMetrics(alarm->font()).horizontalAdvance(u"07:30:00"_s);
    QVERIFY2(armed.width() / 4 > time + 20, qPrintable(QString::number(armed.width() / 4)));
    // The clock has made room above.
    const QRect above = ink(clock->geometry().adjusted(
        0, 0, 0, alarm->geometry().top() - clock->geometry().bottom() - 1));
    QVERIFY(!above.isEmpty());
    QCOMPARE(ink(glass).height() > idle.height() + 4 * 8, true);
}

void MainWindowTest::theLabelWithoutBehaviourIsThere() {
    QCOMPARE(window().findChild<Label*>(u"Label2"_s)->Caption(), u"L2"_s);
}

void MainWindowTest::openingPicturesTellTheirPanelsToThoseWhoCannotSeeThem() {
    QCOMPARE(window().findChild<Image*>(u"imgopen1"_s)->accessibleName(), u"Reminder"_s);
    QCOMPARE(window().findChild<Image*>(u"imgopen4"_s)->accessibleName(), u"Password"_s);
}

void MainWindowTest::aLongTextInTheClockIsNotCutOff() {
    window().Show();
    auto* clock = window().findChild<ClockLabel*>(u"lblVreme"_s);
    // The longest date that the clock tells on a hover.
    clock->setCaption(u"Wednesday, September 30, 2026"_s);
    const QImage picture = window().grab(clock->geometry()).toImage();
    const QImage empty = [&] {
        clock->setCaption({});
        return window().grab(clock->geometry()).toImage();
    }();
    const auto columnDiffers = [&](int x) {
        for (int y = 0; y < picture.height(); ++y)
            if (picture.pixel(x, y) != empty.pixel(x, y))
                return true;
        return false;
    };
    bool drawn = false;
    for (int x = 0; x < picture.width(); ++x)
        drawn = drawn || columnDiffers(x);
    QVERIFY(drawn);
    QVERIFY(!columnDiffers(0) && !columnDiffers(picture.width() - 1));
}

ORVALIS_TEST_MAIN_WITH(Application, MainWindowTest)
#include "main_window_test.moc"
