// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

#include "core/clock_label.h"
#include "core/tick.h"
#include "rtf/reader.h"
#include "runtime/aligned_timer.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "support/without_root.h"

#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Selected = 0xC00000;

/// Counts the runs of the tick.
class CountingTick final : public Tick {
public:
    void run(TickOwner&) override { ++runs; }
    int runs = 0;
};

const QByteArray PlainDocument = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs16 Call Ann\\par}";

} // namespace

class ReminderPanelTest : public QObject {
    Q_OBJECT
private slots:
    void everyControlIsThereUnderItsName_data();
    void everyControlIsThereUnderItsName();
    void captionsAndToolTipsAreTheSystemsOwn_data();
    void captionsAndToolTipsAreTheSystemsOwn();
    void everyFrameHoldsItsControls_data();
    void everyFrameHoldsItsControls();
    void theFramesOfTheEntryAreaShareOnePlace();
    void theFramesOfTheSubPanelsShareOnePlace();
    void theWindowHasTheSizeOfItsPicture();
    void aResizePutsCalendarAndColumnsBack();
    void theListsAreWhiteSageRuledAndHaveNoHeads();
    void noControlIsCutOffOrLiesOnAnother();
    void loadReadsBothDocuments();
    void missingFilesLeaveTheirControlsEmpty();
    void loadReadsBothLists();
    void theMessageFontComesFromTheSettings();
    void aFontSizeThatIsNoneIsPassedOver_data();
    void aFontSizeThatIsNoneIsPassedOver();
    void theClockTakesItsFontAtLoad();
    void atItsDesignWidthEveryControlStandsWhereItWasDrawn();
    void theCalendarStandsOnToday();
    void timeCombosAreFilledAndReadZero();
    void theTimeLabelHasBlanksAfterLoad();
    void theDateLabelShowsTheShortDate();
    void toDoIsTheSubPanelOnOpening();
    void theMessageIsUnchangedAfterLoad();
    void aMenuButtonBringsItsSubPanelToTheFront();
    void anActivationReturnsToToday();
    void theCalendarMarksTodayAndFollowsMidnight();
    void clickingADateShowsIt();
    void aNewStickerIsMadeByItsButton();
    void unloadStoresTheFont();
    void queryUnloadAndUnloadEachStoreTheFont();
    void exitStoresTheFont();
    void exitNeitherAsksForNorWritesTheDocuments();
    void thePickedDateIsNotKept();
    void loadGoesOnPastEveryFailure();
    void itsClockDoesNoAlarmWork();
    void fontsAndSettingsStayOverManyRuns_data();
    void fontsAndSettingsStayOverManyRuns();
    void aSizeTheUserChoseSurvivesItsScaling();
    void aMixedSelectionKeepsTheStoredFont();
    void aRightClickOpensTheEditingMenuInTextBoxesAlone();
    void aDocumentThatIsNotRtfLeavesTheBoxEmptyAndIsKeptAside_data();
    void aDocumentThatIsNotRtfLeavesTheBoxEmptyAndIsKeptAside();
    void aDocumentThatCannotBeReadIsKeptAside();
    void aTruncatedDocumentOpensWithWhatCouldBeRead();
    void ownDocumentsTruncatedAtAnyByteOpenWithWhatCameBefore();
    void rubbishInsideADocumentLeavesTheTextAroundIt();
    void hostileListsLeaveThePanelInUse_data();
    void hostileListsLeaveThePanelInUse();
};

void ReminderPanelTest::everyControlIsThereUnderItsName_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"imgNew",        "imgSave",       "imgDel",        "imgFind",
                             "imgNot",        "MonthView1",    "txt1",          "Frame1",
                             "Frame2",        "Frame3",        "rt1",           "Command2",
                             "chkRemind",     "chkTop",        "Label8",        "Label9",
                             "Label3",        "Combo1",        "Label1",        "Combo2",
                             "Label5",        "Label6",        "rtMs2",         "chkSound",
                             "Button1",       "Button2",       "Label4",        "Text1",
                             "Check1",        "Check2",        "FindButton",    "FindNextButton",
                             "imgBack",       "cmdmenu(0)",    "cmdmenu(1)",    "cmdmenu(2)",
                             "cmdmenu(3)",    "OwnerFrame(0)", "OwnerFrame(1)", "OwnerFrame(2)",
                             "OwnerFrame(3)", "MS3",           "imgso",         "MS1",
                             "imgsoo",        "rt1a",          "imstodo",       "rt2",
                             "Button4",       "imgOpen",       "imgoe",         "Button5",
                             "Button6",       "Image21"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void ReminderPanelTest::everyControlIsThereUnderItsName() {
    QFETCH(QString, name);
    PanelGround ground;
    QCOMPARE(ground.panel().findChildren<QWidget*>(name).size(), 1);
}

void ReminderPanelTest::captionsAndToolTipsAreTheSystemsOwn_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    const std::initializer_list<std::pair<const char*, const char*>> rows{
        {"cmdmenu(0)", "Remind"},
        {"cmdmenu(1)", "Priority"},
        {"cmdmenu(2)", "To-Do"},
        {"cmdmenu(3)", "Weekly"},
        {"imgso", "Save"},
        {"imgsoo", "Save"},
        {"imstodo", "Save"},
        {"Button4", "New"},
        {"imgOpen", "Open"},
        {"imgoe", "Save"},
        {"Button5", "Save As"},
        {"Button6", "Font"},
        {"Frame1", "Find"},
        {"Frame2", "Message Text"},
        {"Frame3", "Click on calendar to set date"},
        {"Command2", "Font"},
        {"chkRemind", "&Remind Me"},
        {"chkTop", "&Top Priority"},
        {"Label8", "Date set to: "},
        {"Label3", "Hour"},
        {"Label1", "Min"},
        {"Label6", "Event Message"},
        {"chkSound", "&Enable Sound"},
        {"Button1", "OK"},
        {"Button2", "Cancel"},
        {"Label4", "Enter search string"},
        {"Check1", "&Match case"},
        {"Check2", "&Whole word only"},
        {"FindButton", "Find"},
        {"FindNextButton", "Next"},
        {"imgBack", "Back"},
        {"txt1", "Title"},
        {"imgNew", "New"},
        {"imgSave", "Save Message"},
        {"imgDel", "Clear"},
        {"imgFind", "Find in To-Do List"},
        {"imgNot", "Create Sticker"},
        {"MonthView1", "Click on Calendar Item to change it"}};
    for (const auto& [name, words] : rows)
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(words);
}

void ReminderPanelTest::captionsAndToolTipsAreTheSystemsOwn() {
    QFETCH(QString, name);
    QFETCH(QString, words);
    PanelGround ground;
    QWidget& widget = ground.control<QWidget>(name);
    for (const char* property : {"Caption", "title", "text"})
        if (const QString text = widget.property(property).toString(); !text.isEmpty()) {
            QCOMPARE(text, words);
            return;
        }
    QCOMPARE(widget.toolTip(), words);
}

void ReminderPanelTest::theWindowHasTheSizeOfItsPicture() {
    PanelGround ground;
    QCOMPARE(ground.shown().size(), QSize(702, 452));
    QCOMPARE(ground.panel().size(), ground.control<Image>(u"Image21"_s).size());
}

void ReminderPanelTest::aResizePutsCalendarAndColumnsBack() {
    PanelGround ground;
    ground.shown();
    const QRect frame = ground.control<QGroupBox>(u"Frame2"_s).geometry();
    const int middle = frame.x() + (frame.width() - ground.calendar().width()) / 2;
    QCOMPARE(ground.calendar().x(), middle);
    const int top = ground.calendar().y();
    const auto putOff = [&] {
        ground.calendar().move(3, top);
        ground.MS1().setColWidth(0, 150);
        ground.MS3().setColWidth(0, 150);
        ground.panel().setFixedSize(500, 300);
        QApplication::processEvents();
    };
    putOff();
    QCOMPARE(ground.panel().size(), ground.control<Image>(u"Image21"_s).size());
    QCOMPARE(ground.calendar().pos(), QPoint(middle, top));
    for (MSFlexGrid* grid : {&ground.MS1(), &ground.MS3()})
        QCOMPARE(grid->ColWidth(0), grid->width() * 15);

    ground.panel().setWindowState(Qt::WindowMinimized);
    putOff();
    QCOMPARE(ground.calendar().x(), 3);
    QCOMPARE(ground.MS3().ColWidth(0), 150);
}

void ReminderPanelTest::theListsAreWhiteSageRuledAndHaveNoHeads() {
    PanelGround ground;
    ground.shown();
    const QColor sage(0xB0, 0xC8, 0xA0);
    for (MSFlexGrid* grid : {&ground.MS1(), &ground.MS3()}) {
        QCOMPARE(grid->Rows(), 1);
        QCOMPARE(grid->Cols(), 1);
        QVERIFY(grid->horizontalHeader()->isHidden());
        QVERIFY(grid->verticalHeader()->isHidden());
        QCOMPARE(grid->palette().color(QPalette::Base), QColor(Qt::white));
        QCOMPARE(grid->palette().color(QPalette::Highlight), sage);
        grid->clearFocus();
        const QImage cells = grid->viewport()->grab().toImage();
        const QRect cell = grid->visualRect(grid->model()->index(0, 0));
        QCOMPARE(cells.pixelColor(cell.center()), QColor(Qt::white));
        QCOMPARE(cells.pixelColor(cell.center().x(), cell.bottom()), sage);
        QCOMPARE(cells.pixelColor(cell.center().x(), cell.bottom() + 40), QColor(Qt::white));
    }
}

void ReminderPanelTest::everyFrameHoldsItsControls_data() {
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QStringList>("controls");
    const auto row = [](const char* frame, const char* controls) {
        QTest::newRow(frame) << QString::fromLatin1(frame)
                             << QString::fromLatin1(controls).split(u' ');
    };
    row("OwnerFrame(0)", "MS3 imgso");
    row("OwnerFrame(1)", "MS1 imgsoo");
    row("OwnerFrame(2)", "rt1a imstodo");
    row("OwnerFrame(3)", "rt2 Button4 imgOpen imgoe Button5 Button6");
    row("Frame2", "rt1 Command2 chkRemind chkTop");
    row("Frame3", "Label8 Label9 Label3 Combo1 Label1 Combo2 Label5 Label6 rtMs2 chkSound Button1 "
                  "Button2");
    row("Frame1", "Label4 Text1 Check1 Check2 FindButton FindNextButton imgBack");
    row("frmnotes1", "MonthView1 txt1 imgNew imgSave imgDel imgFind imgNot cmdmenu(0) cmdmenu(1) "
                     "cmdmenu(2) cmdmenu(3) OwnerFrame(0) OwnerFrame(1) OwnerFrame(2) "
                     "OwnerFrame(3) Frame1 Frame2 Frame3");
}

void ReminderPanelTest::everyFrameHoldsItsControls() {
    QFETCH(QString, frame);
    QFETCH(QStringList, controls);
    PanelGround ground;
    QStringList held;
    for (const QString& name : std::as_const(controls))
        if (ground.control<QWidget>(name).parentWidget()->objectName() == frame)
            held << name;
    QCOMPARE(held, controls);
}

void ReminderPanelTest::theFramesOfTheEntryAreaShareOnePlace() {
    PanelGround ground;
    const QRect place = ground.control<QWidget>(u"Frame2"_s).geometry();
    QCOMPARE(ground.control<QWidget>(u"Frame3"_s).geometry(), place);
    QCOMPARE(ground.control<QWidget>(u"Frame1"_s).geometry(), place);
}

void ReminderPanelTest::theFramesOfTheSubPanelsShareOnePlace() {
    PanelGround ground;
    const QRect place = ground.control<QWidget>(u"OwnerFrame(0)"_s).geometry();
    for (int index = 1; index < 4; ++index)
        QCOMPARE(ground.control<QWidget>(u"OwnerFrame(%1)"_s.arg(index)).geometry(), place);
}

void ReminderPanelTest::noControlIsCutOffOrLiesOnAnother() {
    PanelGround ground;
    for (const QString& frame : {u"Frame1"_s, u"Frame2"_s, u"Frame3"_s, u"OwnerFrame(0)"_s,
                                 u"OwnerFrame(1)"_s, u"OwnerFrame(2)"_s, u"OwnerFrame(3)"_s}) {
        QWidget& container = ground.control<QWidget>(frame);
        QVERIFY2(ground.panel().rect().contains(container.geometry()), qPrintable(frame));
        const auto controls =
            container.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* one : controls) {
            QVERIFY2(container.rect().contains(one->geometry()), qPrintable(one->objectName()));
            for (const QWidget* other : controls)
                QVERIFY2(one == other || !one->geometry().intersects(other->geometry()),
                         qPrintable(one->objectName() + u' ' + other->objectName()));
        }
    }
}

void ReminderPanelTest::loadReadsBothDocuments() {
    PanelGround ground;
    ground.folder.write(u"Vazno.rtf"_s, PlainDocument);
    ground.folder.write(u"weekly.rtf"_s, "{\\rtf1\\ansi Monday\\par}");
    QVERIFY(ground.rt1a().Text().startsWith(u"Call Ann"_s));
    QVERIFY(ground.control<RichTextBox>(u"rt2"_s).Text().startsWith(u"Monday"_s));
}

void ReminderPanelTest::missingFilesLeaveTheirControlsEmpty() {
    PanelGround ground;
    QCOMPARE(ground.rt1a().Text(), QString());
    QCOMPARE(ground.control<RichTextBox>(u"rt2"_s).Text(), QString());
    QCOMPARE(ground.MS1().Rows(), 1);
    QCOMPARE(ground.MS3().Rows(), 1);
    QCOMPARE(ground.folder.names(), QStringList());
}

void ReminderPanelTest::loadReadsBothLists() {
    PanelGround ground;
    ground.folder.write(u"tmp1.brf"_s, " 3  1 \r\n\r\nFriday\r\nurgent\r\n");
    ground.folder.write(u"tmp2.brf"_s, " 3  1 \r\n\r\nSaturday/07:30:00\r\nwake up\r\n");
    QCOMPARE(ground.MS1().TextMatrix(2, 0), u"urgent"_s);
    QCOMPARE(ground.MS1().grid().backColor(1, 0), 255u);
    QCOMPARE(ground.MS3().TextMatrix(2, 0), u"wake up"_s);
    QCOMPARE(ground.MS3().grid().backColor(1, 0), 0xA0C8B0u);
    QCOMPARE(ground.MS2().Rows(), 1);
}

void ReminderPanelTest::theMessageFontComesFromTheSettings() {
    PanelGround ground;
    ground.settings.putSetting(u"RT1"_s, u"FN"_s, u"Courier New"_s);
    ground.settings.putSetting(u"RT1"_s, u"FS"_s, u"14"_s);
    QCOMPARE(ground.rt1().SelFontName(), u"Courier New"_s);
    QCOMPARE(ground.rt1().SelFontSize(), 14.0);
    PanelGround fresh;
    QCOMPARE(fresh.rt1().SelFontName(), u"Arial"_s);
    QCOMPARE(fresh.rt1().SelFontSize(), 8.0);
    QCOMPARE(fresh.store.valueCount(), 0);
}

void ReminderPanelTest::aFontSizeThatIsNoneIsPassedOver_data() {
    QTest::addColumn<QString>("size");
    for (const char* size : {"", "x", "0", "-4", "100000", "1e99"})
        QTest::newRow(size) << QString::fromLatin1(size);
}

void ReminderPanelTest::aFontSizeThatIsNoneIsPassedOver() {
    QFETCH(QString, size);
    PanelGround ground;
    ground.settings.putSetting(u"RT1"_s, u"FS"_s, size);
    const auto points = ground.rt1().SelFontSize();
    QVERIFY(points.has_value());
    QVERIFY(*points >= 6 && *points <= 12);
    QVERIFY(!ground.caption(u"Label5"_s).isEmpty());
}

void ReminderPanelTest::theClockTakesItsFontAtLoad() {
    PanelGround ground;
    frmnotes1 panel(ground.program);
    auto* clock = panel.findChild<ClockLabel*>(u"lblVreme"_s);
    clock->setFont(QFont(u"Courier New"_s, 30));
    panel.load();
    QCOMPARE(clock->font().families().constFirst(), u"Arial"_s);
    QCOMPARE(clock->font().pointSize(), 16);
}

void ReminderPanelTest::atItsDesignWidthEveryControlStandsWhereItWasDrawn() {
    PanelGround ground;
    frmnotes1 panel(ground.program);
    const QStringList names{u"imgMini"_s, u"imgNew"_s, u"imgSave"_s,    u"rt1a"_s,
                            u"txt1"_s,    u"lblRem"_s, u"MonthView1"_s, u"lblVreme"_s};
    QMap<QString, QRect> drawn;
    for (const QString& name : names) {
        const auto* control = panel.findChild<QWidget*>(name);
        QVERIFY2(control != nullptr, qPrintable(name));
        drawn[name] = control->geometry();
    }
    panel.load();
    for (const QString& name : names)
        QCOMPARE(panel.findChild<QWidget*>(name)->geometry(), drawn[name]);
}

void ReminderPanelTest::theCalendarStandsOnToday() {
    PanelGround ground;
    QCOMPARE(ground.calendar().Value(), QDate(2026, 3, 14));
}

void ReminderPanelTest::timeCombosAreFilledAndReadZero() {
    PanelGround ground;
    QCOMPARE(ground.combo(1).ListCount(), 24);
    QCOMPARE(ground.combo(2).ListCount(), 60);
    QCOMPARE(ground.combo(1).List(7), u"07"_s);
    QCOMPARE(ground.combo(2).List(59), u"59"_s);
    QCOMPARE(ground.combo(1).Text(), u"00"_s);
    QCOMPARE(ground.combo(2).Text(), u"00"_s);
}

void ReminderPanelTest::theTimeLabelHasBlanksAfterLoad() {
    PanelGround ground;
    QCOMPARE(ground.caption(u"Label5"_s), u"00 : 00 : 00"_s);
}

void ReminderPanelTest::theDateLabelShowsTheShortDate() {
    PanelGround ground;
    QCOMPARE(ground.caption(u"Label9"_s), u"3/14/26"_s);
}

void ReminderPanelTest::toDoIsTheSubPanelOnOpening() {
    PanelGround ground;
    for (int index = 0; index < 4; ++index)
        QCOMPARE(ground.control<GGCommand>(u"cmdmenu(%1)"_s.arg(index)).ForeColor(),
                 index == 2 ? Selected : 0u);
    QVERIFY(ground.isUp(u"OwnerFrame(2)"_s));
}

void ReminderPanelTest::theMessageIsUnchangedAfterLoad() {
    PanelGround ground;
    QCOMPARE(ground.rt1().Tag(), QString());
}

void ReminderPanelTest::aMenuButtonBringsItsSubPanelToTheFront() {
    PanelGround ground;
    ground.shown();
    for (const int chosen : {0, 3, 1, 2}) {
        ground.press(u"cmdmenu(%1)"_s.arg(chosen));
        for (int index = 0; index < 4; ++index) {
            QCOMPARE(ground.control<GGCommand>(u"cmdmenu(%1)"_s.arg(index)).ForeColor(),
                     index == chosen ? Selected : 0u);
            QCOMPARE(ground.isUp(u"OwnerFrame(%1)"_s.arg(index)), index == chosen);
        }
        const QPoint middle =
            ground.control<QWidget>(u"OwnerFrame(%1)"_s.arg(chosen)).geometry().center();
        QWidget* front = ground.panel().childAt(middle);
        QVERIFY(ground.control<QWidget>(u"OwnerFrame(%1)"_s.arg(chosen)).isAncestorOf(front));
    }
}

void ReminderPanelTest::anActivationReturnsToToday() {
    PanelGround ground;
    ground.shown();
    ground.calendar().setValue(QDate(2027, 1, 31));
    ground.clock.set(QDateTime(QDate(2026, 4, 30), QTime(8, 0)));
    ground.panel().Hide();
    ground.panel().Show();
    QCOMPARE(ground.calendar().Value(), QDate(2026, 4, 30));
    QCOMPARE(ground.calendar().monthShown(), 4);
    QCOMPARE(ground.caption(u"Label9"_s), u"4/30/26"_s);
}

void ReminderPanelTest::theCalendarMarksTodayAndFollowsMidnight() {
    PanelGround ground;
    ground.clock.set(QDateTime(QDate(2026, 3, 17), QTime(23, 59, 59)));
    ground.shown();
    ground.calendar().setValue(QDate(2026, 3, 1));
    const auto calendar = [&] { return ground.calendar().grab().toImage(); };
    const QImage before = calendar();
    ground.clock.advanceSeconds(1);
    QTRY_VERIFY(calendar() != before);
    const QImage after = calendar();
    ground.calendar().setToday(QDate(2026, 3, 18));
    QCOMPARE(calendar(), after);
    QCOMPARE(ground.calendar().Value(), QDate(2026, 3, 1));
}

void ReminderPanelTest::clickingADateShowsIt() {
    PanelGround ground;
    ground.shown();
    Image& exit = ground.control<Image>(u"imgExit"_s);
    emit exit.MouseMove(0, 0, 5, 5);
    QVERIFY(exit.Picture() == ground.control<Image>(u"imgExita"_s).Picture());
    ground.calendar().setValue(QDate(2026, 3, 20));
    emit ground.calendar().DateClick(QDate(2026, 3, 20));
    QCOMPARE(ground.caption(u"Label9"_s), u"3/20/26"_s);
    QVERIFY(exit.Picture() == ground.control<Image>(u"imgExitb"_s).Picture());
}

void ReminderPanelTest::aNewStickerIsMadeByItsButton() {
    PanelGround ground;
    ground.press(u"imgNot"_s);
    QCOMPARE(ground.log, QStringList{u"new frmstick"_s});
    QVERIFY(ground.stickers.made.back()->isVisible());
    QVERIFY(!ground.stickers.made.back()->isModal());
    ground.press(u"imgNot"_s);
    QCOMPARE(ground.stickers.made.size(), std::size_t(2));
}

void ReminderPanelTest::unloadStoresTheFont() {
    PanelGround ground;
    ground.rt1().SetSelFontName(u"Courier New"_s);
    ground.rt1().SetSelFontSize(12);
    ground.leave();
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FN"_s, {}).toString(), u"Courier New"_s);
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FS"_s, {}).toString(), u"12"_s);
}

void ReminderPanelTest::queryUnloadAndUnloadEachStoreTheFont() {
    PanelGround ground;
    ground.panel();
    ground.store.writes = 0;
    ground.leave();
    QCOMPARE(ground.store.writes, 4); // name and size, twice
}

void ReminderPanelTest::exitStoresTheFont() {
    PanelGround ground;
    ground.program.state.StickerCount = 1; // so that the program goes on
    ground.rt1().SetSelFontSize(12);
    ground.panel().exitClick();
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FS"_s, {}).toString(), u"12"_s);
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FN"_s, {}).toString(), u"Arial"_s);
}

void ReminderPanelTest::exitNeitherAsksForNorWritesTheDocuments() {
    PanelGround ground;
    ground.program.state.StickerCount = 1; // so that the program goes on
    ground.rt1a().SetText(u"edited by hand"_s);
    ground.control<RichTextBox>(u"rt2"_s).SetText(u"edited too"_s);
    ground.MS1().AddItem(u"not saved"_s);
    ground.panel().exitClick();
    ground.leave();
    QVERIFY(ground.boxes.asked.isEmpty());
    QCOMPARE(ground.folder.names(), QStringList());
}

void ReminderPanelTest::thePickedDateIsNotKept() {
    PanelGround ground;
    ground.shown();
    ground.calendar().setValue(QDate(2026, 3, 20));
    emit ground.calendar().DateClick(QDate(2026, 3, 20));
    ground.leave();
    QVERIFY(ground.program.windows.loaded<ReminderPanel>() == nullptr);
    QCOMPARE(ground.store.valueCount(), 2); // name and size of the font
    QCOMPARE(ground.calendar().Value(), QDate(2026, 3, 14));
    QCOMPARE(ground.caption(u"Label9"_s), u"3/14/26"_s);
}

void ReminderPanelTest::loadGoesOnPastEveryFailure() {
    PanelGround ground;
    for (const QString& name : {u"Vazno.rtf"_s, u"tmp1.brf"_s, u"tmp2.brf"_s})
        QVERIFY(QDir(ground.folder.path()).mkdir(name));
    ground.folder.write(u"weekly.rtf"_s, "{\\rtf1\\ansi Monday\\par}");
    ground.settings.putSetting(u"RT1"_s, u"FS"_s, u"x"_s);
    QVERIFY(ground.control<RichTextBox>(u"rt2"_s).Text().startsWith(u"Monday"_s));
    QCOMPARE(ground.calendar().Value(), QDate(2026, 3, 14));
    QCOMPARE(ground.MS1().Rows(), 1);
    QCOMPARE(ground.MS3().Rows(), 1);
    QCOMPARE(ground.combo(1).ListCount(), 24);
    QCOMPARE(ground.combo(2).ListCount(), 60);
    QCOMPARE(ground.caption(u"Label5"_s), u"00 : 00 : 00"_s);
    QCOMPARE(ground.caption(u"Label9"_s), u"3/14/26"_s);
    QCOMPARE(ground.control<GGCommand>(u"cmdmenu(2)"_s).ForeColor(), Selected);
    QVERIFY(ground.boxes.asked.isEmpty());
}

void ReminderPanelTest::itsClockDoesNoAlarmWork() {
    PanelGround ground;
    CountingTick tick;
    ground.program.tick = &tick;
    ground.shown();
    ground.clock.advanceSeconds(1);
    emit ground.panel().findChild<AlignedTimer*>(u"Timer2"_s)->tick();
    QCOMPARE(ground.caption(u"lblVreme"_s), u"10 : 24 : 37"_s);
    QCOMPARE(tick.runs, 0);
}

void ReminderPanelTest::fontsAndSettingsStayOverManyRuns_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("size");
    for (const int width : {800, 910, 1024, 1097, 1280, 1920})
        for (const char* size : {"8", "9", "10", "11", "12", "14", "20"})
            QTest::addRow("%d wide, %s points", width, size) << width << QString::fromLatin1(size);
}

void ReminderPanelTest::fontsAndSettingsStayOverManyRuns() {
    QFETCH(int, width);
    QFETCH(QString, size);
    PanelGround ground(QSize(width, width));
    ground.settings.putSetting(u"RT1"_s, u"FN"_s, u"Arial"_s);
    ground.settings.putSetting(u"RT1"_s, u"FS"_s, size);
    const auto shownSize = ground.rt1().SelFontSize();
    ground.leave();
    for (int run = 0; run < 5; ++run) {
        QTest::keyClicks(&ground.rt1(), u"text"_s);
        QCOMPARE(ground.rt1().SelFontSize(), shownSize);
        ground.leave();
        QCOMPARE(ground.settings.setting(u"RT1"_s, u"FN"_s, {}).toString(), u"Arial"_s);
        QCOMPARE(ground.settings.setting(u"RT1"_s, u"FS"_s, {}).toString(), size);
    }
}

void ReminderPanelTest::aSizeTheUserChoseSurvivesItsScaling() {
    PanelGround ground(QSize(1024, 768));
    QCOMPARE(ground.rt1().SelFontSize(), 6.0); // 8 points divided by 1.28
    ground.rt1().SetSelFontSize(16);
    ground.leave();
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FS"_s, {}).toString(), u"20"_s);
    QCOMPARE(ground.rt1().SelFontSize(), 16.0);
}

void ReminderPanelTest::aMixedSelectionKeepsTheStoredFont() {
    PanelGround ground;
    ground.settings.putSetting(u"RT1"_s, u"FN"_s, u"Arial"_s);
    ground.settings.putSetting(u"RT1"_s, u"FS"_s, u"8"_s);
    RichTextBox& message = ground.rt1();
    message.SetSelText(u"small"_s);
    message.SetSelFontName(u"Courier New"_s);
    message.SetSelFontSize(20);
    message.SetSelText(u"large"_s);
    message.SetSelStart(0);
    message.SetSelLength(10);
    ground.leave();
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FN"_s, {}).toString(), u"Arial"_s);
    QCOMPARE(ground.settings.setting(u"RT1"_s, u"FS"_s, {}).toString(), u"8"_s);
}

void ReminderPanelTest::aRightClickOpensTheEditingMenuInTextBoxesAlone() {
    PanelGround ground;
    ground.shown();
    QSet<QString> withMenu;
    const auto open = [&](const QString& up) {
        ground.press(up);
        const auto widgets = ground.panel().findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            // The lists have the panel's clear menu in the place of an editing menu.
            if (!widget->isVisible() || widget->inherits("QMenu") ||
                qobject_cast<MSFlexGrid*>(widget) ||
                qobject_cast<MSFlexGrid*>(widget->parentWidget()))
                continue;
            const QPoint middle = widget->rect().center();
            QContextMenuEvent asked(QContextMenuEvent::Mouse, middle, widget->mapToGlobal(middle));
            QApplication::sendEvent(widget, &asked);
            if (QWidget* menu = QApplication::activePopupWidget()) {
                QCOMPARE(menu->objectName(), u"editMenu"_s);
                withMenu << menu->parentWidget()->objectName();
                if (menu->parentWidget()->parent()->inherits("QComboBox"))
                    withMenu << menu->parentWidget()->parent()->objectName();
                menu->close();
            }
        }
    };
    open(u"cmdmenu(2)"_s); // rt1a has another menu
    open(u"cmdmenu(3)"_s);
    open(u"imgFind"_s);
    ground.tick(u"chkRemind"_s);
    open(u"cmdmenu(0)"_s);
    withMenu.remove(ground.combo(1).lineEdit()->objectName());
    QCOMPARE(withMenu, (QSet<QString>{u"txt1"_s, u"rt1"_s, u"rt2"_s, u"Text1"_s, u"Combo1"_s,
                                      u"Combo2"_s, u"rtMs2"_s}));
}

void ReminderPanelTest::aDocumentThatIsNotRtfLeavesTheBoxEmptyAndIsKeptAside_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("plain text") << QByteArray("my precious list");
    QTest::newRow("rubbish") << QByteArray("\x00\xFF\x7F{\\", 5);
}

void ReminderPanelTest::aDocumentThatIsNotRtfLeavesTheBoxEmptyAndIsKeptAside() {
    QFETCH(QByteArray, bytes);
    PanelGround ground;
    ground.folder.write(u"Vazno.rtf"_s, bytes);
    QCOMPARE(ground.rt1a().Text(), QString());
    ground.rt1().SetText(u"message"_s);
    ground.press(u"imgSave"_s);
    QVERIFY(ground.folder.read(u"Vazno.rtf"_s).startsWith("{\\rtf"));
    QCOMPARE(ground.folder.read(u"Vazno.rtf.unreadable"_s), bytes);
    // No bytes need no keeping.
    QCOMPARE(ground.folder.names().contains(u"Vazno.rtf.unreadable"_s), !bytes.isEmpty());
}

void ReminderPanelTest::aDocumentThatCannotBeReadIsKeptAside() {
    const WithoutRoot ordinaryUser;
    PanelGround ground;
    const QString path = ground.folder.write(u"Vazno.rtf"_s, PlainDocument);
    QVERIFY(QFile::setPermissions(path, QFile::WriteOwner));
    QCOMPARE(ground.rt1a().Text(), QString());
    ground.rt1().SetText(u"message"_s);
    ground.press(u"imgSave"_s);
    QVERIFY(ground.boxes.asked.isEmpty());
    QVERIFY(ground.folder.read(u"Vazno.rtf"_s).contains("message"));
    const QString aside = ground.folder.file(u"Vazno.rtf.unreadable"_s);
    QVERIFY(QFile::setPermissions(aside, QFile::ReadOwner));
    QCOMPARE(ground.folder.read(u"Vazno.rtf.unreadable"_s), PlainDocument);
}

void ReminderPanelTest::aTruncatedDocumentOpensWithWhatCouldBeRead() {
    for (qsizetype length = 1; length < PlainDocument.size(); ++length) {
        PanelGround ground;
        ground.folder.write(u"Vazno.rtf"_s, PlainDocument.first(length));
        const QString read = ground.rt1a().Text();
        const QString whole = u"Call Ann"_s;
        const qsizetype begin = PlainDocument.indexOf("Call Ann");
        const qsizetype there = std::clamp<qsizetype>(length - begin, 0, whole.size());
        QVERIFY2(read.left(there) == whole.left(there), PlainDocument.first(length).constData());
    }
}

void ReminderPanelTest::ownDocumentsTruncatedAtAnyByteOpenWithWhatCameBefore() {
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    message.SetText(u"Café für Ann\r\nПозвонить 🎂 {now}"_s);
    message.SetSelLength(4);
    message.SetSelBold(true);
    message.SetSelColor(0x0000FF);
    message.SetSelFontName(u"Courier New"_s);
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    const QByteArray bytes = ground.folder.read(u"Vazno.rtf"_s);
    // The reader alone, which a box hands the file to: laying the text out a thousand times tells
    // nothing more.
    const auto textOf = [](QByteArrayView rtf) {
        QTextDocument document;
        rtf::readRtf(rtf, document);
        return document.toPlainText();
    };
    const QString whole = textOf(bytes);
    QVERIFY(whole.contains(u"Позвонить 🎂 {now}"_s));
    qsizetype most = 0;
    for (qsizetype length = 6; length <= bytes.size(); ++length) {
        const QString read = textOf(bytes.first(length));
        const auto [end, other] =
            std::mismatch(read.cbegin(), read.cend(), whole.cbegin(), whole.cend());
        const qsizetype common = end - read.cbegin();
        // At most the character in which the file was cut is another, and no byte takes away what
        // the bytes before it gave.
        QVERIFY2(read.size() - common <= 2, bytes.first(length).right(40).constData());
        QVERIFY2(common >= most - 2, bytes.first(length).right(40).constData());
        most = std::max(most, common);
    }
    QCOMPARE(most, whole.size());
}

void ReminderPanelTest::hostileListsLeaveThePanelInUse_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no number") << QByteArray("rows\r\na\r\n");
    QTest::newRow("negative") << QByteArray("-3  1 \r\na\r\n");
    QTest::newRow("a billion rows") << QByteArray(" 1000000000  1 \r\na\r\n");
    QTest::newRow("only NUL") << QByteArray(1000, '\0');
}

void ReminderPanelTest::hostileListsLeaveThePanelInUse() {
    QFETCH(QByteArray, bytes);
    PanelGround ground;
    ground.folder.write(u"tmp1.brf"_s, bytes);
    ground.folder.write(u"tmp2.brf"_s, bytes);
    QCOMPARE(ground.MS1().Rows(), 1);
    QCOMPARE(ground.MS3().Rows(), 1);
    ground.rt1().SetText(u"message"_s);
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.MS1().TextMatrix(2, 0), u"message"_s);
    QVERIFY(ground.boxes.asked.isEmpty());
}

void ReminderPanelTest::rubbishInsideADocumentLeavesTheTextAroundIt() {
    const QByteArray rubbish("\x00\xFF\x81\x0C\x1A\\'\x7F{\\*\\\xF0", 13);
    const QString whole = u"Call Ann"_s;
    const qsizetype begin = PlainDocument.indexOf("Call Ann");
    for (qsizetype place = 6; place <= PlainDocument.size(); ++place) {
        PanelGround ground;
        QByteArray bytes = PlainDocument;
        bytes.insert(place, rubbish);
        ground.folder.write(u"Vazno.rtf"_s, bytes);
        const QString read = ground.rt1a().Text();
        const qsizetype before = std::clamp<qsizetype>(place - begin, 0, whole.size());
        QVERIFY2(read.left(before) == whole.left(before), qPrintable(QString::number(place)));
        QVERIFY(ground.boxes.asked.isEmpty());
        // Whatever could not be read of it stays beside what is written next.
        ground.press(u"imgSave"_s);
        QVERIFY(ground.folder.read(u"Vazno.rtf"_s).contains("Message not set"));
        if (ground.folder.names().contains(u"Vazno.rtf.unreadable"_s))
            QCOMPARE(ground.folder.read(u"Vazno.rtf.unreadable"_s), bytes);
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, ReminderPanelTest)
#include "reminder_panel_test.moc"
