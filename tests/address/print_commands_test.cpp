// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/print_ground.h"

#include "support/test_main.h"

#include <QWindow>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Blue = 0xFF0000;
const QString PageFilter = u"Address (*.rtf)|*.rtf|Text (*.txt)|*.txt"_s;
const QString NeededFiles =
    u"Can't overwrite files needed for Orvalis. Choose a different name for backup file."_s;

QString replaceQuestion(const QString& path) {
    return u"The File "_s + path + u" already exists.\nDo you want to replace it?"_s;
}

} // namespace

/// The commands of the print window's toolbar.
class PrintCommandsTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_test = std::make_unique<PrintGround>(); }
    void cleanup() { m_test.reset(); }

    void anEmptyPageIsToldOnlyBehindThePrintDialog();
    void aCancelledPrintDialogEndsPrintSilently();
    void aPagePrintsWithMarginsOfAnInch();
    void saveMakesRichTextOfANewFileAndLeavesThePage();
    void savingAsTextDropsTheFormattingOnTheScreenAtOnce();
    void theEndingDecidesTheFormat_data();
    void theEndingDecidesTheFormat();
    void theProgramsOwnDocumentsAreRefusedAndTheDialogComesAgain();
    void aNameInOtherCapitalsIsNoneOfThem();
    void anExistingFileIsReplacedOnOkAndReadBack_data();
    void anExistingFileIsReplacedOnOkAndReadBack();
    void anExistingFileStaysOnCancel();
    void aCancelledSaveDialogWritesNothing();
    void aSaveThatFailsIsSilentAndKeepsThePage();
    void aReloadThatFailsLeavesThePageEmpty();
    void eachSaveAsksForANameAnew();
    void openReplacesThePageByTheFile();
    void openTakesTextForTextByItsEnding();
    void aFileThatCannotBeReadLeavesThePage_data();
    void aFileThatCannotBeReadLeavesThePage();
    void fontOffersWhatTheSelectionHas();
    void fontGoesToTheSelectionAndIntoTheSettings();
    void fontOffersNoColourOfTheSelection();
    void aCancelledFontDialogChangesNothing();
    void aMixedSelectionEndsFontAheadOfTheDialog();
    void theFontIsThatOfTheNextWindow();
    void deleteTakesTheSelectionAway();
    void deleteWithoutASelectionSaysSo();
    void findShowsTheFindWindowOverThisOne();

private:
    QString file(const QString& name) const { return m_test->folder.file(name); }

    std::unique_ptr<PrintGround> m_test;
};

void PrintCommandsTest::anEmptyPageIsToldOnlyBehindThePrintDialog() {
    m_test->dialogs.answerPrinter(false);
    m_test->press(u"print"_s);
    QVERIFY(m_test->boxes.asked.isEmpty());
    m_test->dialogs.answerPrinter(true);
    m_test->boxes.expect(u"Nothing to print."_s, 64, Answer::Ok);
    m_test->press(u"print"_s);
    QCOMPARE(m_test->dialogs.printersChosen, 2);
    QCOMPARE(m_test->printed(), QStringList());
}

void PrintCommandsTest::aCancelledPrintDialogEndsPrintSilently() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerPrinter(false);
    m_test->press(u"print"_s);
    QCOMPARE(m_test->printed(), QStringList());
}

void PrintCommandsTest::aPagePrintsWithMarginsOfAnInch() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerPrinter(true);
    m_test->press(u"print"_s);
    QCOMPARE(m_test->printed(), QStringList{u"Ann 1440 1440 1440 1440"_s});
}

void PrintCommandsTest::saveMakesRichTextOfANewFileAndLeavesThePage() {
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Lee"_s);
    m_test->rtb().SetSelBold(true);
    m_test->dialogs.answerSave(file(u"page.rtf"_s));
    m_test->press(u"save"_s);
    QCOMPARE(m_test->dialogs.saved.constLast().filter, PageFilter);
    QVERIFY(m_test->folder.read(u"page.rtf"_s).startsWith("{\\rtf1"));
    QCOMPARE(m_test->rtb().SelText(), u"Lee"_s); // not even the selection went
    QCOMPARE(m_test->rtb().SelBold(), std::optional(true));
    RichTextBox read;
    read.SetTextRTF(m_test->folder.read(u"page.rtf"_s));
    QCOMPARE(read.Text(), u"Ann Lee"_s);
    QVERIFY(read.Find(u"Lee"_s) >= 0);
    QCOMPARE(read.SelBold(), std::optional(true));
}

void PrintCommandsTest::savingAsTextDropsTheFormattingOnTheScreenAtOnce() {
    m_test->panel.shown.Email = u"ann@example.org"_s;
    m_test->window().stampa();
    const QString text = m_test->rtb().Text();
    m_test->dialogs.answerSave(file(u"page.txt"_s));
    m_test->press(u"save"_s);
    QCOMPARE(m_test->folder.read(u"page.txt"_s), text.toLatin1());
    QCOMPARE(m_test->rtb().Text(), text);
    m_test->rtb().selectAll();
    QCOMPARE(m_test->rtb().SelBold(), std::optional(false));
    QCOMPARE(m_test->rtb().SelColor(), std::optional(0U));
}

void PrintCommandsTest::theEndingDecidesTheFormat_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRich");
    QTest::newRow("rtf") << u"a.rtf"_s << true;
    QTest::newRow("capitals") << u"a.RTF"_s << true;
    QTest::newRow("mixed") << u"a.Rtf"_s << true;
    QTest::newRow("txt") << u"a.txt"_s << false;
    QTest::newRow("no ending") << u"a"_s << false;
    QTest::newRow("no point") << u"artf"_s << false;
    QTest::newRow("inside the name") << u"a.rtf.bak"_s << false;
    QTest::newRow("nothing else") << u".rtf"_s << true;
}

void PrintCommandsTest::theEndingDecidesTheFormat() {
    QFETCH(QString, name);
    QFETCH(bool, isRich);
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(file(name));
    m_test->press(u"save"_s);
    QCOMPARE(m_test->folder.read(name).startsWith("{\\rtf"), isRich);
}

void PrintCommandsTest::theProgramsOwnDocumentsAreRefusedAndTheDialogComesAgain() {
    m_test->rtb().SetText(u"Ann"_s);
    for (const QString& name : {u"weekly.rtf"_s, u"Vazno.rtf"_s}) {
        m_test->dialogs.answerSave(file(name));
        m_test->boxes.expect(NeededFiles, 16, Answer::Ok, u"Warning"_s);
    }
    m_test->dialogs.answerSave(file(u"page.rtf"_s));
    m_test->press(u"save"_s);
    QCOMPARE(m_test->folder.names(), QStringList{u"page.rtf"_s});
}

void PrintCommandsTest::aNameInOtherCapitalsIsNoneOfThem() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(file(u"Weekly.rtf"_s));
    m_test->press(u"save"_s);
    QCOMPARE(m_test->folder.names(), QStringList{u"Weekly.rtf"_s});
}

void PrintCommandsTest::anExistingFileIsReplacedOnOkAndReadBack_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("rich text") << u"page.rtf"_s;
    QTest::newRow("text") << u"page.txt"_s;
}

void PrintCommandsTest::anExistingFileIsReplacedOnOkAndReadBack() {
    QFETCH(QString, name);
    const QString path = m_test->folder.write(name, "old");
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Lee"_s);
    m_test->rtb().SetSelBold(true);
    m_test->dialogs.answerSave(path);
    m_test->boxes.expect(replaceQuestion(path), 1, Answer::Ok);
    m_test->press(u"save"_s);
    QVERIFY(m_test->folder.read(name).contains("Lee"));
    QCOMPARE(m_test->rtb().Text(), u"Ann Lee"_s);
    QCOMPARE(m_test->rtb().SelStart(), 0); // the page was filled anew
    QVERIFY(!m_test->rtb().CanUndo());
    m_test->select(u"Lee"_s);
    QCOMPARE(m_test->rtb().SelBold(), std::optional(name == u"page.rtf"_s));
}

void PrintCommandsTest::anExistingFileStaysOnCancel() {
    const QString path = m_test->folder.write(u"page.txt"_s, "old");
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(path);
    m_test->boxes.expect(replaceQuestion(path), 1, Answer::Cancel);
    m_test->press(u"save"_s);
    QCOMPARE(m_test->folder.read(u"page.txt"_s), QByteArray("old"));
    QCOMPARE(m_test->rtb().Text(), u"Ann"_s);
}

void PrintCommandsTest::aCancelledSaveDialogWritesNothing() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(std::nullopt);
    m_test->press(u"save"_s);
    QCOMPARE(m_test->folder.names(), QStringList());
}

void PrintCommandsTest::aSaveThatFailsIsSilentAndKeepsThePage() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(file(u"no/such/folder.txt"_s));
    m_test->press(u"save"_s);
    QCOMPARE(m_test->rtb().Text(), u"Ann"_s);
}

void PrintCommandsTest::aReloadThatFailsLeavesThePageEmpty() {
    const QString path = file(u"page.txt"_s);
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(path);
    bool emptied = false;
    connect(&m_test->rtb(), &RichTextBox::Change, this, [&] {
        if (m_test->rtb().Text().isEmpty())
            emptied = QFile::remove(path);
    });
    m_test->press(u"save"_s);
    QVERIFY(emptied);
    QCOMPARE(m_test->rtb().Text(), QString());
}

void PrintCommandsTest::eachSaveAsksForANameAnew() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerSave(file(u"page.rtf"_s));
    m_test->press(u"save"_s);
    m_test->dialogs.answerSave(std::nullopt);
    m_test->press(u"save"_s);
    QCOMPARE(m_test->dialogs.saved.constLast().fileName, QString());
    m_test->dialogs.answerOpen(std::nullopt);
    m_test->press(u"open"_s);
    QCOMPARE(m_test->dialogs.opened.constLast().fileName, QString());
}

void PrintCommandsTest::openReplacesThePageByTheFile() {
    const QString path = m_test->folder.write(u"page.rtf"_s, "{\\rtf1 Ann {\\b Lee}}");
    m_test->rtb().SetText(u"what stood there"_s);
    m_test->dialogs.answerOpen(path);
    m_test->press(u"open"_s);
    QCOMPARE(m_test->dialogs.opened.constLast().filter, PageFilter);
    QCOMPARE(m_test->rtb().Text(), u"Ann Lee"_s);
    m_test->select(u"Lee"_s);
    QCOMPARE(m_test->rtb().SelBold(), std::optional(true));
}

void PrintCommandsTest::openTakesTextForTextByItsEnding() {
    const QString path = m_test->folder.write(u"page.doc"_s, "{\\rtf1 Ann}");
    m_test->dialogs.answerOpen(path);
    m_test->press(u"open"_s);
    QCOMPARE(m_test->rtb().Text(), u"{\\rtf1 Ann}"_s);
}

void PrintCommandsTest::aFileThatCannotBeReadLeavesThePage_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("not there") << u"none.rtf"_s;
    QTest::newRow("not rich text") << u"plain.rtf"_s;
    QTest::newRow("a folder") << u"."_s;
}

void PrintCommandsTest::aFileThatCannotBeReadLeavesThePage() {
    QFETCH(QString, name);
    m_test->folder.write(u"plain.rtf"_s, "no rich text");
    m_test->rtb().SetText(u"Ann"_s);
    m_test->dialogs.answerOpen(file(name));
    m_test->press(u"open"_s);
    QCOMPARE(m_test->rtb().Text(), u"Ann"_s);
    m_test->dialogs.answerOpen(std::nullopt);
    m_test->press(u"open"_s);
    QCOMPARE(m_test->rtb().Text(), u"Ann"_s);
}

void PrintCommandsTest::fontOffersWhatTheSelectionHas() {
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Lee"_s);
    m_test->rtb().SetSelFontName(u"Courier New"_s);
    m_test->rtb().SetSelFontSize(14);
    m_test->rtb().SetSelBold(true);
    m_test->rtb().SetSelItalic(true);
    m_test->rtb().SetSelUnderline(true);
    m_test->rtb().SetSelStrikeThru(true);
    m_test->dialogs.answerFont(std::nullopt);
    m_test->press(u"font"_s);
    QCOMPARE(m_test->dialogs.fonts.constLast(), (FontChoice{.italic = true,
                                                            .bold = true,
                                                            .name = u"Courier New"_s,
                                                            .size = 14,
                                                            .strikethrough = true,
                                                            .underline = true,
                                                            .colour = 0}));
}

void PrintCommandsTest::fontGoesToTheSelectionAndIntoTheSettings() {
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Lee"_s);
    m_test->dialogs.answerFont(FontChoice{.italic = true,
                                          .bold = true,
                                          .name = u"Courier New"_s,
                                          .size = 14.5,
                                          .strikethrough = true,
                                          .underline = true,
                                          .colour = Blue});
    m_test->press(u"font"_s);
    const RichTextBox& page = m_test->rtb();
    QCOMPARE(page.SelItalic(), std::optional(true));
    QCOMPARE(page.SelBold(), std::optional(true));
    QCOMPARE(page.SelFontName(), std::optional(u"Courier New"_s));
    QCOMPARE(page.SelFontSize(), std::optional(14.5));
    QCOMPARE(page.SelStrikeThru(), std::optional(true));
    QCOMPARE(page.SelUnderline(), std::optional(true));
    QCOMPARE(page.SelColor(), std::optional(Blue));
    QCOMPARE(m_test->setting(u"Imslova"_s), u"Courier New"_s);
    QCOMPARE(m_test->setting(u"Vslova"_s), u"14.5"_s);
    m_test->select(u"Ann"_s);
    QCOMPARE(page.SelBold(), std::optional(false));
}

void PrintCommandsTest::fontOffersNoColourOfTheSelection() {
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Ann"_s);
    m_test->rtb().SetSelColor(255);
    m_test->select(u"Ann Lee"_s); // of two colours, and no hindrance
    FontChoice chosen{.name = u"Arial"_s, .size = 10, .colour = Blue};
    m_test->dialogs.answerFont(chosen);
    m_test->press(u"font"_s);
    QCOMPARE(m_test->dialogs.fonts.constLast().colour, 0U);
    QCOMPARE(m_test->rtb().SelColor(), std::optional(Blue));
    // The next time it offers the one chosen last.
    m_test->dialogs.answerFont(std::nullopt);
    m_test->press(u"font"_s);
    QCOMPARE(m_test->dialogs.fonts.constLast().colour, Blue);
}

void PrintCommandsTest::aCancelledFontDialogChangesNothing() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->rtb().selectAll();
    m_test->rtb().SetSelColor(255);
    m_test->dialogs.answerFont(std::nullopt);
    m_test->press(u"font"_s);
    QCOMPARE(m_test->rtb().SelColor(), std::optional(255U));
    QCOMPARE(m_test->setting(u"Imslova"_s), QString());
    QCOMPARE(m_test->setting(u"Vslova"_s), QString());
}

void PrintCommandsTest::aMixedSelectionEndsFontAheadOfTheDialog() {
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Lee"_s);
    m_test->rtb().SetSelBold(true);
    m_test->rtb().selectAll();
    m_test->press(u"font"_s);
    QVERIFY(m_test->dialogs.fonts.isEmpty());
}

void PrintCommandsTest::theFontIsThatOfTheNextWindow() {
    m_test->dialogs.answerFont(FontChoice{.name = u"Courier New"_s, .size = 14.5});
    m_test->press(u"font"_s);
    m_test->program.windows.unload<PrintWindow>();
    QCOMPARE(m_test->rtb().SelFontName(), std::optional(u"Courier New"_s));
    QCOMPARE(m_test->rtb().SelFontSize(), std::optional(14.5));
}

void PrintCommandsTest::deleteTakesTheSelectionAway() {
    m_test->rtb().SetText(u"Ann Lee"_s);
    m_test->select(u"Ann "_s);
    m_test->press(u"del"_s);
    QCOMPARE(m_test->rtb().Text(), u"Lee"_s);
}

void PrintCommandsTest::deleteWithoutASelectionSaysSo() {
    m_test->rtb().SetText(u"Ann"_s);
    m_test->boxes.expect(u"Select text to clear."_s, 64, Answer::Ok);
    m_test->press(u"del"_s);
    QCOMPARE(m_test->rtb().Text(), u"Ann"_s);
}

void PrintCommandsTest::findShowsTheFindWindowOverThisOne() {
    m_test->window().Show();
    m_test->press(u"find"_s);
    Form& find = m_test->program.windows.get<FindWindow>().form();
    QVERIFY(find.isVisible());
    QVERIFY(!find.isModal());
    QCOMPARE(find.windowHandle()->transientParent(), m_test->window().windowHandle());
}

ORVALIS_TEST_MAIN_WITH(Application, PrintCommandsTest)
#include "print_commands_test.moc"
