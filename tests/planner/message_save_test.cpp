// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/panel_ground.h"

#include "support/folder_watch.h"

#include <QFileInfo>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

const QString Rule(19, u'_');

/// The entry that the ground's clock and calendar give a message.
QString entry(const QString& title, const QString& message) {
    return u"\r\n"_s + title + u"\r\n"_s + Rule + u"\r\n\r\n"_s + message +
           u"\r\n\r\n    To do: Saturday, March 14, 2026\r\n    Saved: 3/14/26 10:24:36 AM\r\n"_s +
           Rule + u"\r\n"_s;
}

/// The format of the first place where the text stands.
struct Format {
    std::optional<QString> name;
    std::optional<qreal> size;
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> strike;
    std::optional<bool> underline;
    std::optional<quint32> colour;
};

Format formatOf(RichTextBox& box, const QString& text) {
    if (box.Find(text) < 0)
        qFatal("the document has no \"%s\"", qPrintable(text));
    return {box.SelFontName(),   box.SelFontSize(),  box.SelBold(), box.SelItalic(),
            box.SelStrikeThru(), box.SelUnderline(), box.SelColor()};
}

} // namespace

class MessageSaveTest : public QObject {
    Q_OBJECT
private slots:
    void anEntryIsAppendedInItsFourPieces();
    void anEmptyMessageIsFiledUnderItsStandIn();
    void entriesFollowEachOtherInTheOrderOfSaving();
    void theMessageKeepsItsOwnFormats();
    void aTypedMessageIsWrittenInTheSizeThatItShows_data();
    void aTypedMessageIsWrittenInTheSizeThatItShows();
    void theDueLineIsPlainSmallArial();
    void theDueLineOfATopPriorityIsRed();
    void theSavedLineIsBlackAndOtherwiseAsTheDueLine();
    void itemsStandInTheOrderOfSaving();
    void theEntryStandsForTheDateOfTheCalendar();
    void theTitleTakesTheFormatAtTheEnd();
    void theDocumentIsSavedAndTheCaretRestsAtItsEnd();
    void aTopPriorityMessageLandsInThePriorityList();
    void aReminderLandsInTheRemindListAndIsPending();
    void aMessageWithBothTicksLandsInAllThreeLists();
    void aPlainMessageLandsInNoList();
    void theListsAreWrittenAndReadBackColoured();
    void theHiddenCopyTakesWhatThePanelShows();
    void theShownListIsWhatStaysInTheFile();
    void filesAreWrittenInTheirOrderAndEachOnce();
    void remindersOfAFormerRunComeAliveWithTheNextSave();
    void untouchedCombosStoreATimeThatCannotCome();
    void aMultilineMessageShiftsThePriorityList();
    void saveSelectsTheToDoPanel();
    void saveClearsTheMessageAndKeepsTitleAndDate();
    void afterASaveTheTagSaysChangedAndNobodyIsAsked();
    void nothingIsReportedWhereNothingCanBeWritten();
    void aHeaderSavedInOneLanguageStaysAsItIs();
    void theToDoSaveButtonWritesTheDocument();
    void theToDoSaveButtonIsSilentWhereItCannotWrite();
};

void MessageSaveTest::anEntryIsAppendedInItsFourPieces() {
    PanelGround ground;
    ground.control<QLineEdit>(u"txt1"_s).setText(u"Ann"_s);
    ground.rt1().SetText(u"Call Ann"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.rt1a().Text(), entry(u"Ann"_s, u"Call Ann"_s));
}

void MessageSaveTest::anEmptyMessageIsFiledUnderItsStandIn() {
    PanelGround ground;
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.rt1a().Text(), entry(u"Title"_s, u"Message not set"_s));
}

void MessageSaveTest::entriesFollowEachOtherInTheOrderOfSaving() {
    PanelGround ground;
    ground.rt1().SetText(u"first"_s);
    ground.press(u"imgSave"_s);
    ground.rt1a().SetSelStart(0);
    ground.rt1().SetText(u"second"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.rt1a().Text(), entry(u"Title"_s, u"first"_s) + entry(u"Title"_s, u"second"_s));
}

void MessageSaveTest::theMessageKeepsItsOwnFormats() {
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    message.SetText(u"plain "_s);
    message.SetSelStart(6);
    message.SetSelBold(true);
    message.SetSelFontSize(20);
    message.SetSelColor(0x00FF00);
    message.SetSelText(u"loud"_s);
    ground.press(u"imgSave"_s);
    const Format loud = formatOf(ground.rt1a(), u"loud"_s);
    QCOMPARE(loud.bold, true);
    QCOMPARE(loud.size, 20.0);
    QCOMPARE(loud.colour, 0x00FF00u);
    QCOMPARE(formatOf(ground.rt1a(), u"plain"_s).bold, false);
}

void MessageSaveTest::aTypedMessageIsWrittenInTheSizeThatItShows_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<double>("points");
    QTest::newRow("800x600") << QSize(800, 600) << 8.0;
    QTest::newRow("1024x768 at its scale") << QSize(819, 614) << 8.0;
    QTest::newRow("1920x1080 at its scale") << QSize(1097, 617) << 8.0;
    QTest::newRow("a desktop that nobody scales") << QSize(1600, 1200) << 4.0;
}

void MessageSaveTest::aTypedMessageIsWrittenInTheSizeThatItShows() {
    QFETCH(QSize, screen);
    QFETCH(double, points);
    PanelGround ground(screen);
    ground.shown();
    QTest::keyClicks(&ground.rt1(), u"Water the roses"_s);
    QCOMPARE(formatOf(ground.rt1(), u"Water the roses"_s).size, points);
    ground.press(u"imgSave"_s);
    RichTextBox elsewhere;
    elsewhere.files().LoadFile(ground.folder.file(u"Vazno.rtf"_s));
    QCOMPARE(formatOf(elsewhere, u"Water the roses"_s).size, points);
}

void MessageSaveTest::theDueLineIsPlainSmallArial() {
    PanelGround ground;
    RichTextBox& message = ground.rt1();
    message.SetText(u"loud"_s);
    message.SetSelLength(4);
    message.SetSelFontName(u"Courier New"_s);
    message.SetSelFontSize(20);
    message.SetSelBold(true);
    message.SetSelItalic(true);
    message.SetSelStrikeThru(true);
    message.SetSelUnderline(true);
    message.SetSelColor(0x00FF00);
    ground.press(u"imgSave"_s);
    const Format due = formatOf(ground.rt1a(), u"    To do: Saturday"_s);
    QCOMPARE(due.name, u"Arial"_s);
    QCOMPARE(due.size, 8.0);
    QCOMPARE(due.bold, false);
    QCOMPARE(due.italic, false);
    QCOMPARE(due.strike, false);
    QCOMPARE(due.underline, false);
    QCOMPARE(due.colour, 0u);
}

void MessageSaveTest::theDueLineOfATopPriorityIsRed() {
    PanelGround ground;
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(formatOf(ground.rt1a(), u"To do: Saturday, March 14, 2026"_s).colour, 255u);
}

void MessageSaveTest::theSavedLineIsBlackAndOtherwiseAsTheDueLine() {
    PanelGround ground;
    ground.rt1().SetSelFontSize(20);
    ground.rt1().SetSelBold(true);
    ground.rt1().SetSelText(u"loud"_s);
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    const Format saved = formatOf(ground.rt1a(), u"    Saved: 3/14/26 10:24:36 AM"_s);
    QCOMPARE(saved.colour, 0u);
    QCOMPARE(saved.name, u"Arial"_s);
    QCOMPARE(saved.size, 8.0);
    QCOMPARE(saved.bold, false);
}

void MessageSaveTest::itemsStandInTheOrderOfSaving() {
    PanelGround ground;
    for (const QDate& date : {QDate(2026, 12, 1), QDate(2026, 3, 20)}) {
        ground.calendar().setValue(date);
        ground.rt1().SetText(QString::number(date.day()));
        ground.tick(u"chkTop"_s);
        ground.tick(u"chkRemind"_s);
        ground.rtMs2().SetText(QString::number(date.month()));
        ground.press(u"Button1"_s);
        ground.press(u"imgSave"_s);
    }
    QCOMPARE(ground.folder.read(u"tmp1.brf"_s),
             QByteArray(" 5  1 \r\n\r\nTuesday, December 01, 2026\r\n1\r\n"
                        "Friday, March 20, 2026\r\n20\r\n"));
    QCOMPARE(ground.folder.read(u"tmp2.brf"_s),
             QByteArray(" 5  1 \r\n\r\nTuesday, December 01, 2026/00 : 00 : 00\r\n12\r\n"
                        "Friday, March 20, 2026/00 : 00 : 00\r\n3\r\n"));
}

void MessageSaveTest::theEntryStandsForTheDateOfTheCalendar() {
    PanelGround ground;
    ground.calendar().setValue(QDate(2026, 12, 1));
    ground.press(u"imgSave"_s);
    QVERIFY(ground.rt1a().Text().contains(u"    To do: Tuesday, December 01, 2026\r\n"_s));
}

void MessageSaveTest::theTitleTakesTheFormatAtTheEnd() {
    PanelGround ground;
    RichTextBox& list = ground.rt1a();
    list.SetText(u"by hand"_s);
    list.SetSelLength(7);
    list.SetSelItalic(true);
    ground.press(u"imgSave"_s);
    QCOMPARE(formatOf(list, u"Title"_s).italic, true);
}

void MessageSaveTest::theDocumentIsSavedAndTheCaretRestsAtItsEnd() {
    PanelGround ground;
    ground.rt1().SetText(u"Call Ann"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.rt1a().SelStart(), static_cast<int>(ground.rt1a().Text().size()));
    RichTextBox copy;
    copy.files().LoadFile(ground.folder.file(u"Vazno.rtf"_s));
    QVERIFY(copy.Text().startsWith(ground.rt1a().Text()));
}

void MessageSaveTest::aTopPriorityMessageLandsInThePriorityList() {
    PanelGround ground;
    ground.rt1().SetText(u"urgent"_s);
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.folder.read(u"tmp1.brf"_s),
             QByteArray(" 3  1 \r\n\r\nSaturday, March 14, 2026\r\nurgent\r\n"));
    QCOMPARE(ground.MS1().grid().backColor(1, 0), 255u);
    QCOMPARE(ground.MS1().grid().foreColor(1, 0), 0xFFFFFFu);
    QCOMPARE(ground.MS1().grid().backColor(2, 0), GridModel::White);
    QCOMPARE(ground.MS1().grid().foreColor(2, 0), 0u);
    QCOMPARE(ground.folder.read(u"tmp2.brf"_s), QByteArray(" 1  1 \r\n\r\n"));
    QVERIFY(!ground.program.state.RemindPending);
}

void MessageSaveTest::aReminderLandsInTheRemindListAndIsPending() {
    PanelGround ground;
    ground.rt1().SetText(u"message"_s);
    ground.tick(u"chkRemind"_s);
    ground.type(ground.combo(1), u"7"_s);
    ground.type(ground.combo(2), u"30"_s);
    ground.rtMs2().SetText(u"wake up"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.folder.read(u"tmp2.brf"_s),
             QByteArray(" 3  1 \r\n\r\nSaturday, March 14, 2026/07:30:00\r\nwake up\r\n"));
    QCOMPARE(ground.folder.read(u"tmp1.brf"_s), QByteArray(" 1  1 \r\n\r\n"));
    QVERIFY(ground.program.state.RemindPending);
}

void MessageSaveTest::aMessageWithBothTicksLandsInAllThreeLists() {
    PanelGround ground;
    ground.rt1().SetText(u"both"_s);
    ground.tick(u"chkTop"_s);
    ground.tick(u"chkRemind"_s);
    ground.rtMs2().SetText(u"event"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QVERIFY(ground.rt1a().Text().contains(u"both"_s));
    QCOMPARE(ground.MS1().TextMatrix(2, 0), u"both"_s);
    QCOMPARE(ground.MS3().TextMatrix(2, 0), u"event"_s);
}

void MessageSaveTest::aPlainMessageLandsInNoList() {
    PanelGround ground;
    ground.rt1().SetText(u"plain"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.MS1().Rows(), 1);
    QCOMPARE(ground.MS3().Rows(), 1);
    QVERIFY(!ground.program.state.RemindPending);
}

void MessageSaveTest::theListsAreWrittenAndReadBackColoured() {
    PanelGround ground;
    for (int i = 0; i < 2; ++i) {
        ground.tick(u"chkRemind"_s);
        ground.press(u"Button1"_s);
        ground.press(u"imgSave"_s);
    }
    const GridModel& list = ground.MS3().grid();
    QCOMPARE(list.Rows(), 5);
    QCOMPARE(list.backColor(1, 0), 0xA0C8B0u);
    QCOMPARE(list.backColor(2, 0), GridModel::White);
    QCOMPARE(list.backColor(3, 0), 0xA0C8B0u);
    QCOMPARE(list.backColor(4, 0), GridModel::White);
}

void MessageSaveTest::theHiddenCopyTakesWhatThePanelShows() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.MS2().Rows(), 3);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(ground.MS2().TextMatrix(row, 0), ground.MS3().TextMatrix(row, 0));
}

void MessageSaveTest::theShownListIsWhatStaysInTheFile() {
    PanelGround ground;
    ground.MS2().AddItem(u"only in the hidden copy"_s);
    ground.MS3().AddItem(u"header"_s);
    ground.MS3().AddItem(u"only on the panel"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.folder.read(u"tmp2.brf"_s),
             QByteArray(" 3  1 \r\n\r\nheader\r\nonly on the panel\r\n"));
    QCOMPARE(ground.MS2().TextMatrix(2, 0), u"only on the panel"_s);
}

void MessageSaveTest::filesAreWrittenInTheirOrderAndEachOnce() {
    PanelGround ground;
    for (const char* name : {"Vazno.rtf", "tmp1.brf", "tmp2.brf"})
        ground.folder.write(QString::fromLatin1(name), {});
    ground.panel();
    const FolderWatch watch(ground.folder.path());
    ground.press(u"imgSave"_s);
    QCOMPARE(watch.renamedTo(), (QStringList{u"Vazno.rtf"_s, u"tmp1.brf"_s, u"tmp2.brf"_s}));
    ground.panel().sv3();
    QCOMPARE(watch.renamedTo(), QStringList{u"tmp2.brf"_s});
}

void MessageSaveTest::remindersOfAFormerRunComeAliveWithTheNextSave() {
    PanelGround ground;
    ground.folder.write(u"tmp2.brf"_s,
                        " 3  1 \r\n\r\nSaturday, March 14, 2026/11:00:00\r\nold\r\n");
    QCOMPARE(ground.MS3().Rows(), 3);
    QCOMPARE(ground.MS2().Rows(), 1);
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.MS2().Rows(), 5);
    QCOMPARE(ground.MS2().TextMatrix(2, 0), u"old"_s);
    QVERIFY(ground.program.state.RemindPending);
}

void MessageSaveTest::untouchedCombosStoreATimeThatCannotCome() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.MS3().TextMatrix(1, 0), u"Saturday, March 14, 2026/00 : 00 : 00"_s);
}

void MessageSaveTest::aMultilineMessageShiftsThePriorityList() {
    PanelGround ground;
    ground.rt1().SetText(u"two\r\nlines"_s);
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.folder.read(u"tmp1.brf"_s),
             QByteArray(" 3  1 \r\n\r\nSaturday, March 14, 2026\r\ntwo\r\nlines\r\n"));
    QCOMPARE(ground.MS1().TextMatrix(2, 0), u"two"_s);
}

void MessageSaveTest::saveSelectsTheToDoPanel() {
    PanelGround ground;
    ground.press(u"cmdmenu(0)"_s);
    ground.press(u"imgSave"_s);
    QVERIFY(ground.isUp(u"OwnerFrame(2)"_s));
    QVERIFY(!ground.isUp(u"OwnerFrame(0)"_s));
    QCOMPARE(ground.control<GGCommand>(u"cmdmenu(2)"_s).ForeColor(), 0xC00000u);
}

void MessageSaveTest::saveClearsTheMessageAndKeepsTitleAndDate() {
    PanelGround ground;
    ground.control<QLineEdit>(u"txt1"_s).setText(u"Ann"_s);
    ground.calendar().setValue(QDate(2026, 12, 1));
    ground.rt1().SetText(u"message"_s);
    ground.tick(u"chkTop"_s);
    ground.tick(u"chkRemind"_s);
    ground.rtMs2().SetText(u"event"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.rt1().Text(), QString());
    QCOMPARE(ground.rtMs2().Text(), QString());
    QVERIFY(!ground.control<QCheckBox>(u"chkTop"_s).isChecked());
    QVERIFY(!ground.control<QCheckBox>(u"chkRemind"_s).isChecked());
    QCOMPARE(ground.control<QLineEdit>(u"txt1"_s).text(), u"Ann"_s);
    QCOMPARE(ground.calendar().Value(), QDate(2026, 12, 1));
}

void MessageSaveTest::afterASaveTheTagSaysChangedAndNobodyIsAsked() {
    PanelGround ground;
    ground.rt1().SetText(u"message"_s);
    ground.press(u"imgSave"_s);
    QCOMPARE(ground.rt1().Tag(), u"promena"_s);
    ground.press(u"imgNew"_s);
    ground.program.state.StickerCount = 1; // so that the program goes on
    ground.panel().exitClick();
    QVERIFY(ground.boxes.asked.isEmpty());
}

void MessageSaveTest::nothingIsReportedWhereNothingCanBeWritten() {
    PanelGround ground;
    ground.panel();
    for (const char* name : {"Vazno.rtf", "tmp1.brf", "tmp2.brf"})
        QVERIFY(QDir(ground.folder.path()).mkdir(QString::fromLatin1(name)));
    ground.rt1().SetText(u"message"_s);
    ground.tick(u"chkTop"_s);
    ground.press(u"imgSave"_s);
    QVERIFY(ground.boxes.asked.isEmpty());
    QCOMPARE(ground.rt1a().Text(), entry(u"Title"_s, u"message"_s));
    QCOMPARE(ground.rt1().Text(), QString());
    QVERIFY(QFileInfo(ground.folder.file(u"tmp1.brf"_s)).isDir());
}

void MessageSaveTest::aHeaderSavedInOneLanguageStaysAsItIs() {
    PanelGround ground;
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ground.tick(u"chkRemind"_s);
    ground.press(u"Button1"_s);
    ground.press(u"imgSave"_s);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QVERIFY(ground.MS3().TextMatrix(1, 0).startsWith(u"Saturday, March"_s));
    QVERIFY(ground.MS3().TextMatrix(3, 0).startsWith(u"Samstag, März"_s));
}

void MessageSaveTest::theToDoSaveButtonWritesTheDocument() {
    PanelGround ground;
    ground.rt1a().SetText(u"edited by hand"_s);
    QVERIFY(!ground.folder.names().contains(u"Vazno.rtf"_s));
    ground.press(u"imstodo"_s);
    RichTextBox copy;
    copy.files().LoadFile(ground.folder.file(u"Vazno.rtf"_s));
    QVERIFY(copy.Text().startsWith(u"edited by hand"_s));
}

void MessageSaveTest::theToDoSaveButtonIsSilentWhereItCannotWrite() {
    PanelGround ground;
    ground.panel();
    QVERIFY(QDir(ground.folder.path()).mkdir(u"Vazno.rtf"_s));
    ground.press(u"imstodo"_s);
    QVERIFY(ground.boxes.asked.isEmpty());
}

ORVALIS_TEST_MAIN_WITH(QApplication, MessageSaveTest)
#include "message_save_test.moc"
