// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/formats/list_formats.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

const QByteArray Fonts = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 One;}{\\f1 Two;}{\\f2;}}";

void readFile(QTextDocument& document, const QByteArray& body) {
    QVERIFY(readRtf(Fonts + body + "}", document).ok());
    // Whatever stands in the wrong place, what was read is written so that it is read the same.
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(again.toRawText(), document.toRawText());
    QCOMPARE(writeRtf(again), written);
}

QString familyOf(QTextDocument& document, const QString& text) {
    return document.find(text).charFormat().fontFamilies().toStringList().value(0);
}

QByteArray item(const QByteArray& label, const QByteArray& start) {
    return "\\pard{\\pntext " + label + "\\tab}{\\*\\pn\\pnlvlbody\\pnstart" + start +
           "\\pndec{\\pntxta .}}x\\par";
}

} // namespace

/// Files say things in places where they mean nothing, or where they come too late.
class OutOfPlaceTest : public QObject {
    Q_OBJECT
private slots:
    void theFontOfTextThatNamesNoneIsSettledWithTheFirstText();
    void aFontThatIsToldAheadOfTheTextHoldsForAllOfIt();
    void aFontWithoutANameIsThatOfTextThatNamesNone();
    void stylesBehindTextComeTooLate();
    void whatAnInstructionSaysOfTheDocumentMeansNothing();
    void aNumberThatItsLabelShowsBeginsAnew();
    void aNumberThatItsLabelDoesNotShowGoesOn();
    void theTextOfALabelBeginsAnewWhateverCameBefore();
    void aBoxThatBringsNoTextStaysAtItsPlace();
    void aRowThatIsNothingBehindABoxLeavesTheNextParagraphAlone();
    void anItemInARowThatABoxLeavesOpenStaysAnItem();
    void aLabelInABoxIsThatOfItsParagraph();
    void anEquationWhoseWordIsNotTheFirstIsKeptByWhatItShows();
    void aListWithoutAnOverrideToKeepIsWritten();
    void wordsOfALevelBehindTheNumberOfItsListCount();
    void aListWithinAListIsNone();
    void aRowOfOneEmptyCellInABoxShowsNothing();
    void aBoxBehindARowStandsOutsideTheTable();
    void textAmongTheWordsOfANestedRowIsShownOnce();
    void halfACharacterOfAnEquationIsASign();
    void whatAGroupIsForIsSaidOnce();
    void aRowEndAheadOfTheTextOfABoxEndsNothing();
    void theRowsAroundABoxAreNoneOfIts();
    void aBoxWhoseTextIsDeletedStaysOne();
    void theSpacingOfLettersHasOneLimitHoweverItIsTold();
    void aListBeginsInAGroupOfItsOwn();
    void aBlankByItsNumberEndsTheHeadOfAGroupThatIsKept();
    void whatABoxBehindACellInterruptsStaysAhead();
    void aShapeSaysNothingOfTheCodePage();
    void aPictureMayHaveItsDigitsInAGroup();
    void halfACharacterAheadOfATableIsASign();
    void aSectionEndsTheRowThatItBeginsIn();
    void aSignOfTwoUnitsToldByNumberStaysANumber();
    void theInstructionOfAFieldIsThatForReadersOfUnicode();
    void anInstructionInAFormulaIsNoneOfTheField();
    void anInstructionInAPictureIsNoneOfTheField();
    void theFontOfALabelInABoxIsThatOfNoOther();
    void aNumberedLineOfCellsThatNoRowEndsIsText();
    void aBoxEndsTheRowThatItStandsIn();
    void aWordThatNobodyKnowsEndsTheWaitForAFallback();
    void aStarGoesWithTheWordThatItStandsFor();
    void wordsAreNoneOfTheNameOfAProperty();
    void textInAGroupThatNobodyKnowsIsNoneOfAShape();
    void aPropertyOutsideOfWhatTellsOfAShapeIsNone();
    void aDeletedPictureIsNoneOfAShape();
    void aPictureThatTheFileBreaksOffIsShown();
    void aWordOfTheDocumentInAShapeIsToldOnce();
    void theNumberOfANoteInAShapeInACellIsText();
    void aPageToldInAShapeInACellMakesItText();
    void aTableOfFontsInAShapeInACellMakesItText();
    void theTextOfAShapeInACellBeginsInThePageAroundIt();
    void aCharacterBeyondSixteenBitsIsKept();
    void aSignThatStandsForAnObjectIsKeptAsNone();
    void aTabIsNoFallbackAheadOfText();
    void whatStandsForACharacterIsAsLongInAGroupThatIsKept();
    void theCodePageHoldsBehindTheGroupThatTellsIt();
    void anItemOfAListInACellWhoseRowNeverEndsShowsNoLabel();
    void anItemOfAListInACellAheadOfARowWithoutCellsIsText();
    void tabsInAFontThatIsNamedAsOneOfSignsAreTold();
    void aFieldShowsNothingThatNoLineHas();
    void aFieldAheadOfTheFontsLooksAsTextThere();
    void aFieldLooksAsItsOwnInstruction();
    void textForReadersOfUnicodeInAShapeIsNoFrame();
    void aCellThatEndsABoxBesideAPictureIsText();
    void theSideOfALabelOfAListThatNobodyKnowsIsNotTold();
    void aShapeInACellKnowsTheLookOfTextBehindTheHead();
    void aTabIsPartOfTheNameOfAProperty();
    void aFormulaThatItsCopyShowsAsAPictureIsNone();
    void aSignThatIsNoCharacterStandsForNoneInWhatIsKept();
    void anInstructionInAnInstructionIsNoneOfItsText();
    void aShapeThatIsKeptInAFieldEndsNothingOfIt();
    void aShapeInTheOtherFormOfAPictureIsNotKept();
    void aFrameHoldsNoOtherFormOfItsPicture();
    void dataInAGroupOfAPictureAreKeptWithIt();
    void aSectionThatEndsInAShapeInATextDissolvesTheShapeAround();
    void whatStandsBehindARowWithoutEndMakesNone();
};

void OutOfPlaceTest::theFontOfTextThatNamesNoneIsSettledWithTheFirstText() {
    QTextDocument document;
    readFile(document, "a\\par\\deff1 b{\\fonttbl{\\f0 Three;}}\\plain c");
    QCOMPARE(familyOf(document, QStringLiteral("a")), QStringLiteral("One"));
    QCOMPARE(familyOf(document, QStringLiteral("b")), QStringLiteral("One"));
    QCOMPARE(familyOf(document, QStringLiteral("c")), QStringLiteral("One"));
}

void OutOfPlaceTest::aFontThatIsToldAheadOfTheTextHoldsForAllOfIt() {
    QTextDocument document;
    readFile(document, "{\\b\\deff1 a}b");
    QCOMPARE(familyOf(document, QStringLiteral("a")), QStringLiteral("Two"));
    QCOMPARE(familyOf(document, QStringLiteral("b")), QStringLiteral("Two"));
}

void OutOfPlaceTest::aFontWithoutANameIsThatOfTextThatNamesNone() {
    QTextDocument document;
    readFile(document, "\\f1 a\\f2 b");
    QCOMPARE(familyOf(document, QStringLiteral("a")), QStringLiteral("Two"));
    QCOMPARE(familyOf(document, QStringLiteral("b")), QStringLiteral("One"));
}

void OutOfPlaceTest::stylesBehindTextComeTooLate() {
    QTextDocument document;
    readFile(document, "a\\par\\sa20{\\stylesheet{\\s1 b;}}");
    QVERIFY(!writeRtf(document).contains("stylesheet"));
    readFile(document, " \\sa20{\\stylesheet{\\s1 b;}}\\b a");
    QVERIFY(writeRtf(document).contains("{\\stylesheet{\\s1 b;}}"));
}

void OutOfPlaceTest::whatAnInstructionSaysOfTheDocumentMeansNothing() {
    QTextDocument document;
    readFile(document, "{\\field{\\*\\fldinst PAGE\\deftab99\\deff1\\sectd}{\\fldrslt 3}}");
    QCOMPARE(familyOf(document, QStringLiteral("3")), QStringLiteral("One"));
    QVERIFY(writeRtf(document).startsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{"));
    QCOMPARE(document.defaultTextOption().tabStopDistance(), 48.0);
}

void OutOfPlaceTest::aNumberThatItsLabelShowsBeginsAnew() {
    QTextDocument document;
    readFile(document, item("1.", "1") + item("2.", "2") + item("1.", "1"));
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QStringLiteral("2."));
    QCOMPARE(shownLabel(document.findBlockByNumber(2)), QStringLiteral("1."));
    readFile(document, item("1.", "1") + item("1.", "1"));
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QStringLiteral("1."));
}

void OutOfPlaceTest::aNumberThatItsLabelDoesNotShowGoesOn() {
    QTextDocument document;
    readFile(document, item("1.", "1") + item("2.", "1"));
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QStringLiteral("2."));
    QCOMPARE(document.lastBlock().textList(), document.firstBlock().textList());
}

void OutOfPlaceTest::theTextOfALabelBeginsAnewWhateverCameBefore() {
    QTextDocument document;
    readFile(document, "{\\pntext b)\\tab}x\\par{\\pntext b)\\tab}x\\par{\\pntext c)\\tab}x\\par");
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("b)"));
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QStringLiteral("b)"));
    QCOMPARE(shownLabel(document.findBlockByNumber(2)), QStringLiteral("c)"));
}

void OutOfPlaceTest::aBoxThatBringsNoTextStaysAtItsPlace() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\*\\shpinst{\\shptxt{\\deleted x\\intbl}}}}b");
    QCOMPARE(document.toPlainText(), QStringLiteral("ab"));
    QVERIFY(writeRtf(document).contains("a{\\shp{\\*\\shpinst{\\shptxt}}}b"));
}

void OutOfPlaceTest::aRowThatIsNothingBehindABoxLeavesTheNextParagraphAlone() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx9\\cell\\row{ \\shp{\\shptxt q}}\\cell\\row x");
    QCOMPARE(document.toPlainText(), QStringLiteral("\n \nq\nx"));
    QVERIFY(!document.lastBlock().blockFormat().hasProperty(TableRow));
}

void OutOfPlaceTest::anItemInARowThatABoxLeavesOpenStaysAnItem() {
    const auto labelsOf = [](const QTextDocument& document) {
        QStringList labels;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            labels << shownLabel(block);
        return labels;
    };
    QTextDocument document;
    readFile(document, "{\\listtable{\\list\\listlevel{\\listlevel}\\listid7}}"
                       "{\\listoverridetable{\\listoverride\\listid7\\ls1}}\\ls1\\ilvl1"
                       "{\\shp{\\shptxt a\\page\\intbl\\cellx9{{b}}\\ilvl}}c");
    QCOMPARE(labelsOf(document), QStringLiteral("1,1,1").split(u','));
    QTextDocument again;
    readRtf(writeRtf(document), again);
    QCOMPARE(labelsOf(again), labelsOf(document));
}

void OutOfPlaceTest::aLabelInABoxIsThatOfItsParagraph() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\*\\shpinst{\\shptxt\\pard{\\pntext -\\tab}b\\par}}}\\par");
    QCOMPARE(shownLabel(document.firstBlock()), QString());
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QStringLiteral("-"));
    readFile(document, "{\\pntext -\\tab}{\\shp{\\*\\shpinst{\\shptxt\\pard b\\par}}}a\\par");
    QCOMPARE(shownLabel(document.firstBlock()), QString());
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QStringLiteral("-"));
}

void OutOfPlaceTest::anEquationWhoseWordIsNotTheFirstIsKeptByWhatItShows() {
    QTextDocument document;
    readFile(document, "a{\\field{\\*\\fldinst EQ(b)}{\\fldrslt}}");
    QCOMPARE(document.toPlainText(), QStringLiteral("a(b)"));
    QCOMPARE(writeRtf(document).count("fldinst"), 1);
}

void OutOfPlaceTest::aListWithoutAnOverrideToKeepIsWritten() {
    QTextDocument document;
    readFile(document, "{\\*\\listtable{\\list{\\listlevel\\levelnfc0}\\listid1}}"
                       "{\\*\\listoverridetable{\\listoverride{\\listoverride\\listid1\\ls1}}"
                       "{\\listoverride\\listid1\\ls2}}\\ls2 x\\par");
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("1"));
}

void OutOfPlaceTest::wordsOfALevelBehindTheNumberOfItsListCount() {
    QTextDocument document;
    readFile(document, "{\\*\\listtable{\\list{\\listlevel\\listid1\\levelnfc2}}}"
                       "{\\*\\listoverridetable{\\listoverride\\listid1\\ls1}}\\ls1 x\\par");
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("i"));
}

void OutOfPlaceTest::aListWithinAListIsNone() {
    QTextDocument document;
    readFile(document, "{\\*\\listtable{\\list{\\listlevel\\levelnfc1}{\\list}\\listid7}}"
                       "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}\\ls1 item");
    QVERIFY(document.firstBlock().textList());
    QCOMPARE(document.firstBlock().textList()->format().style(), QTextListFormat::ListUpperRoman);
}

void OutOfPlaceTest::aRowOfOneEmptyCellInABoxShowsNothing() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\shptxt\\cell\\row}}b");
    QCOMPARE(document.toPlainText(), QStringLiteral("ab"));
    QVERIFY(writeRtf(document).contains("\\shptxt\\cell\\row}}"));
}

void OutOfPlaceTest::aBoxBehindARowStandsOutsideTheTable() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx900\\intbl d\\par\\pard{\\shp{\\shptxt x}}");
    QVERIFY(writeRtf(document).contains("\\row\r\n\\pard{\\shp{\\shptxt"));
}

void OutOfPlaceTest::textAmongTheWordsOfANestedRowIsShownOnce() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx900\\intbl\\itap2 a\\nestcell{\\*\\nesttableprops\\trowd"
                       "\\cellx400\\nestrow seen}\\pard\\intbl\\cell\\row");
    QCOMPARE(document.toPlainText().count(u"seen"), 1);
    QCOMPARE(writeRtf(document).count("seen"), 1);
}

void OutOfPlaceTest::halfACharacterOfAnEquationIsASign() {
    QTextDocument document;
    readFile(document, "{\\field{\\*\\fldinst EQ \\u-9216 }}");
    QCOMPARE(document.toPlainText(), QString(QChar::ReplacementCharacter));
}

void OutOfPlaceTest::whatAGroupIsForIsSaidOnce() {
    QTextDocument document;
    readFile(document, "a{\\shptxt\\fonttbl x}b{\\*\\pntext\\shptxt y}c");
    QCOMPARE(document.toPlainText(), QStringLiteral("axbc"));
}

void OutOfPlaceTest::aRowEndAheadOfTheTextOfABoxEndsNothing() {
    QTextDocument plain;
    readFile(plain, "a{\\shp{\\shptxt b}}c");
    QTextDocument document;
    readFile(document, "a{\\shp{\\shptxt\\row b}}c");
    QCOMPARE(document.toPlainText(), QStringLiteral("a\nb\nc"));
    QCOMPARE(writeRtf(document), writeRtf(plain));
}

void OutOfPlaceTest::theRowsAroundABoxAreNoneOfIts() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx900\\intbl a\\cell\\row\\pard{\\shp{\\shptxt\\intbl b\\par}}"
                       "\\intbl c\\cell\\row");
    const auto isOfRow = [&](const QString& text) {
        return document.find(text).blockFormat().hasProperty(TableRow);
    };
    QVERIFY(isOfRow(QStringLiteral("a")));
    QVERIFY(!isOfRow(QStringLiteral("b")));
    QVERIFY(isOfRow(QStringLiteral("c")));
}

void OutOfPlaceTest::aBoxWhoseTextIsDeletedStaysOne() {
    QTextDocument document;
    readFile(document, "a\\par{\\shp{\\shptxt b}}c");
    QTextCursor text = document.find(QStringLiteral("b"));
    text.removeSelectedText();
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(again.toPlainText(), QStringLiteral("a\n\nc"));
    QVERIFY(again.findBlockByNumber(1).blockFormat().hasProperty(KeptBox));
}

void OutOfPlaceTest::theSpacingOfLettersHasOneLimitHoweverItIsTold() {
    QTextDocument quarters;
    readFile(quarters, "\\expnd1028 a");
    QTextDocument twips;
    readFile(twips, "\\expndtw5140 a");
    QCOMPARE(writeRtf(quarters), writeRtf(twips));
}

void OutOfPlaceTest::aListBeginsInAGroupOfItsOwn() {
    QTextDocument document;
    readFile(document, "{\\*\\listtable\\list\\listlevel\\listid1}"
                       "{\\*\\listoverridetable\\listoverride\\listid1\\ls1}\\ls1 a");
    QVERIFY(!document.firstBlock().textList());
}

void OutOfPlaceTest::aBlankByItsNumberEndsTheHeadOfAGroupThatIsKept() {
    QTextDocument document;
    readFile(document, "a{\\field{\\*\\fldinst EQ {\\u10\\generator x}}{\\fldrslt b}}");
    QVERIFY(writeRtf(document).contains("{\\u10?\\generator x}"));
    readFile(document, "a{\\header{\\u-4?\\pict 0a}}");
    QVERIFY(writeRtf(document).contains("{\\header{\\u-4?\\pict 0a}}"));
}

void OutOfPlaceTest::whatABoxBehindACellInterruptsStaysAhead() {
    QTextDocument document;
    readFile(document, "a\\cell{\\shp\\shpleft1}{\\shp{\\shptxt b\\cell c}}d");
    QCOMPARE(document.toPlainText(), QStringLiteral("a\t\nb\tc\nd"));
    QVERIFY(!document.firstBlock().blockFormat().hasProperty(KeptBox));
    QVERIFY(writeRtf(document).contains("a\\cell{\\shp\\shpleft1}"));
}

void OutOfPlaceTest::aShapeSaysNothingOfTheCodePage() {
    QTextDocument document;
    readFile(document, "{\\shp\\mac{\\shptxt \\'96}}");
    QCOMPARE(document.toPlainText(), QString(QChar(0xf1)));
    QVERIFY(writeRtf(document).contains("{\\shp{\\shptxt"));
}

void OutOfPlaceTest::aPictureMayHaveItsDigitsInAGroup() {
    QTextDocument document;
    readFile(document, "{\\shp{\\shptxt{\\pict 01{02}}}{\\shptxt a}}");
    QCOMPARE(writeRtf(document).count("0102"), 1);
}

void OutOfPlaceTest::halfACharacterAheadOfATableIsASign() {
    QTextDocument document;
    readFile(document, "\\u-10179{\\colortbl;}\\page a");
    QCOMPARE(document.toPlainText(), QString(QChar::ReplacementCharacter) + QStringLiteral("\na"));
}

void OutOfPlaceTest::aSectionEndsTheRowThatItBeginsIn() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx900\\intbl a\\par\\sect b\\cell\\row");
    QVERIFY(writeRtf(document).contains("b\\cell\\row"));
    readFile(document, "\\intbl\\trowd\\cellx9 a\\cell\\row\\par\\sect\\trowd\\cellx9\\par");
    QCOMPARE(document.blockCount(), 3);
}

void OutOfPlaceTest::aSignOfTwoUnitsToldByNumberStaysANumber() {
    QTextDocument document;
    readFile(document, "{\\fonttbl{\\f3\\fcharset2 Wingdings;}}\\f3\\'b7 \\u-10179?\\u-8880?");
    QVERIFY(writeRtf(document).contains("\\'b7 \\u-10179?\\u-8880?"));
}

void OutOfPlaceTest::theInstructionOfAFieldIsThatForReadersOfUnicode() {
    QTextDocument document;
    readFile(document, "{\\field{\\upr{\\*\\fldinst EQ (a)}{\\*\\ud{\\*\\fldinst EQ (b)}}}}");
    QCOMPARE(document.toPlainText(), QStringLiteral("(b)"));
    QVERIFY(writeRtf(document).contains("{\\*\\fldinst EQ (b)}"));
}

void OutOfPlaceTest::anInstructionInAFormulaIsNoneOfTheField() {
    QTextDocument document;
    readFile(document, "{\\field{\\mmath\\fldinst EQ (a)}{\\*\\fldinst EQ (b)}}");
    QCOMPARE(document.toPlainText(), QStringLiteral("EQ (a)(b)"));
}

void OutOfPlaceTest::anInstructionInAPictureIsNoneOfTheField() {
    QTextDocument document;
    readFile(document, "{\\field{\\pict{\\fldinst EQ (a)}}{\\*\\fldinst EQ (b)}}");
    QCOMPARE(document.toPlainText(), QStringLiteral("(b)"));
}

void OutOfPlaceTest::theFontOfALabelInABoxIsThatOfNoOther() {
    QTextDocument document;
    readFile(document, "{\\fonttbl{\\f3\\fcharset2 Symbol;}}{\\pntext p\\tab}a"
                       "{\\shp{\\shptxt{\\pntext\\f3 q\\tab}b}}");
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("p"));
    QCOMPARE(shownLabel(document.findBlockByNumber(1)), QString(QChar(0x3b8)));
}

void OutOfPlaceTest::aNumberedLineOfCellsThatNoRowEndsIsText() {
    QTextDocument document;
    readFile(document,
             "\\trowd\\cellx9\\cellx99\\intbl a\\cell{\\*\\pn\\pnlvlbody\\pnstart1\\pndec}b\\par"
             "\\pard c\\par");
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("1"));
    QVERIFY(!writeRtf(document).contains("\\row"));
}

void OutOfPlaceTest::aBoxEndsTheRowThatItStandsIn() {
    QTextDocument document;
    readFile(document,
             "\\trowd\\cellx900\\intbl a\\par\\pard{\\shp{\\shptxt b}}\\intbl c\\cell\\row");
    QVERIFY(writeRtf(document).contains("c\\cell\\row"));
}

void OutOfPlaceTest::aWordThatNobodyKnowsEndsTheWaitForAFallback() {
    QTextDocument document;
    readFile(document, "\\u8364\\unknown ab");
    QCOMPARE(document.toPlainText(), QString(QChar(0x20ac)) + QStringLiteral("ab"));
}

void OutOfPlaceTest::aStarGoesWithTheWordThatItStandsFor() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\*\\f\\t{\\shptxt b}}}");
    QVERIFY(writeRtf(document).contains("{\\shp{\\t{\\shptxt"));
    readFile(document, "a{\\header{\\* \\cf9\\b c}}");
    QVERIFY(writeRtf(document).contains("{\\header{\\*\\cf0\\b c}}"));
}

void OutOfPlaceTest::wordsAreNoneOfTheNameOfAProperty() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\*\\shpinst{\\sp{\\sn pi\\b b}{\\sv{\\pict 0102}}}}}");
    QVERIFY(document.toPlainText().contains(QChar::ObjectReplacementCharacter));
}

void OutOfPlaceTest::textInAGroupThatNobodyKnowsIsNoneOfAShape() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\*\\unknown{\\shptxt b}}}c");
    QCOMPARE(document.toPlainText(), QStringLiteral("ac"));
    QVERIFY(writeRtf(document).contains("{\\shp{\\*\\unknown{\\shptxt b}}}"));
}

void OutOfPlaceTest::aPropertyOutsideOfWhatTellsOfAShapeIsNone() {
    QTextDocument document;
    readFile(document, "a{\\shp{\\sn pib}{\\sv{\\pict 0102}}{\\shptxt b}}c");
    QCOMPARE(document.toPlainText(), QStringLiteral("a\nb\nc"));
    readFile(document, "a{\\shp\\shpinst{\\sn pib}{\\pict 0102}{\\sv{\\pict 0304}}}c");
    QCOMPARE(document.toPlainText(), QStringLiteral("a\ufffcc"));
    // The one that a shape ahead has told is none of this one.
    readFile(document, "{\\shpinst{\\sn pib}}a{\\shp\\shpinst{\\sv{\\pict 01}}{\\shptxt b}}c");
    QCOMPARE(document.toPlainText(), QStringLiteral("a\nb\nc"));
}

void OutOfPlaceTest::aDeletedPictureIsNoneOfAShape() {
    QTextDocument document;
    readFile(document, "a{\\shp\\shpinst{\\sn pib}{\\sv{\\pict 0102}\\deleted{\\pict 0304}}}c");
    QCOMPARE(document.toPlainText().count(QChar::ObjectReplacementCharacter), 1);
}

void OutOfPlaceTest::aPictureThatTheFileBreaksOffIsShown() {
    QTextDocument document;
    QVERIFY(!readRtf(Fonts + "a{\\pict{0102", document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("a\ufffc"));
}

void OutOfPlaceTest::aWordOfTheDocumentInAShapeIsToldOnce() {
    QTextDocument document;
    readFile(document, "{\\shp{\\shptxt t}\\paperw8}\\paperw9");
    QCOMPARE(writeRtf(document).count("\\paperw"), 1);
    QVERIFY(writeRtf(document).contains("\\paperw9"));
    readFile(document, "\\trowd\\cellx99\\intbl{\\shp{\\shptxt t\\paperw8}}\\paperw9\\cell\\row");
    QCOMPARE(writeRtf(document).count("\\paperw"), 1);
}

void OutOfPlaceTest::theNumberOfANoteInAShapeInACellIsText() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx99\\intbl d{\\shp{\\shptxt t\\chftn}}\\cell\\row");
    QCOMPARE(document.toPlainText(), QStringLiteral("dt"));
    QVERIFY(!writeRtf(document).contains("\\shp"));
}

void OutOfPlaceTest::aPageToldInAShapeInACellMakesItText() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx99\\intbl{\\shp{\\shptxt\\ansicpg1251\\'e0}}\\cell\\row");
    QCOMPARE(document.toPlainText(), QString(QChar(0x430)));
    QVERIFY(!writeRtf(document).contains("\\shp"));
}

void OutOfPlaceTest::aTableOfFontsInAShapeInACellMakesItText() {
    QTextDocument document;
    readFile(document,
             "\\trowd\\cellx99\\intbl{\\shp{\\shptxt{\\fonttbl{\\f3 Three;}}\\f3 a}}\\cell\\row");
    QCOMPARE(familyOf(document, QStringLiteral("a")), QStringLiteral("Three"));
    QVERIFY(!writeRtf(document).contains("\\shp"));
}

void OutOfPlaceTest::theTextOfAShapeInACellBeginsInThePageAroundIt() {
    QTextDocument document;
    readFile(document, "{\\fonttbl{\\f3\\fcharset204 Three;}}\\trowd\\cellx99\\intbl\\f3{\\shp"
                       "{\\shptxt\\'e0\\f0\\'e0}}\\cell\\row");
    QCOMPARE(document.toPlainText(), QStringLiteral("\u0430\u00e0"));
    QVERIFY(writeRtf(document).contains("{\\shptxt\\u1072?"));
}

void OutOfPlaceTest::aCharacterBeyondSixteenBitsIsKept() {
    QTextDocument document;
    readFile(document, "a{\\header \\u128512?}");
    QVERIFY(writeRtf(document).contains("{\\header\\u-10179?\\u-8704?}"));
}

void OutOfPlaceTest::aSignThatStandsForAnObjectIsKeptAsNone() {
    QTextDocument document;
    readFile(document, "\\trowd\\cellx99\\intbl{\\shp{\\shptxt\\u-4?}}\\cell\\row");
    QCOMPARE(document.toPlainText(), QString(QChar(QChar::ReplacementCharacter)));
    QVERIFY(writeRtf(document).contains("{\\shptxt\\u-4?}"));
}

void OutOfPlaceTest::aTabIsNoFallbackAheadOfText() {
    QTextDocument document;
    readFile(document, "a{\\header\\u8364\\\tb}");
    QVERIFY(writeRtf(document).contains("{\\header\\'80b}"));
}

void OutOfPlaceTest::whatStandsForACharacterIsAsLongInAGroupThatIsKept() {
    QTextDocument document;
    readFile(document, "\\uc0 a{\\header\\u946 b}");
    QVERIFY(writeRtf(document).contains("{\\header\\u946?b}"));
    readFile(document, "\\uc2 a{\\header\\u946?!b}");
    QVERIFY(writeRtf(document).contains("{\\header\\u946?b}"));
    // A word ends it, though it is left out.
    readFile(document, "a{\\header\\u946\\deftab9 b}");
    QVERIFY(writeRtf(document).contains("{\\header\\u946?b}"));
}

void OutOfPlaceTest::theCodePageHoldsBehindTheGroupThatTellsIt() {
    QTextDocument document;
    readFile(document, "{\\ansicpg1251}\\'e0");
    QCOMPARE(document.toPlainText(), QString(QChar(0x430)));
}

void OutOfPlaceTest::anItemOfAListInACellWhoseRowNeverEndsShowsNoLabel() {
    const QByteArray lists = "{\\*\\listtable{\\list{\\listlevel{\\leveltext\\'02\\'00.;}"
                             "{\\levelnumbers\\'01;}}\\listid7}}"
                             "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}";
    QTextDocument document;
    readFile(document,
             lists + "\\cellx99\\intbl\\itap2\\ls1\\nestcell{\\nesttableprops\\pard\\nestrow}");
    QVERIFY(!writeRtf(document).contains("\\listtext"));
    QVERIFY(writeRtf(document).contains("\\pard\\intbl\\ls1\\ilvl0"));
}

void OutOfPlaceTest::anItemOfAListInACellAheadOfARowWithoutCellsIsText() {
    QTextDocument document;
    readFile(document, "{\\*\\listtable{\\list{\\listlevel}\\listid7}}{\\*\\listoverridetable"
                       "{\\listoverride\\listid7\\ls1}}\\cellx99\\ls1 a\\cell\\trowd\\row");
    QVERIFY(!writeRtf(document).contains("\\row"));
}

void OutOfPlaceTest::tabsInAFontThatIsNamedAsOneOfSignsAreTold() {
    QTextDocument document;
    readFile(document, "{\\fonttbl{\\f3\\fcharset0 Wingdings;}}\\f3 a\tb\\tab c\\u9?d\\u8232?e");
    int runs = 0;
    for (auto it = document.firstBlock().begin(); !it.atEnd(); ++it, ++runs) {
        const QString text = it.fragment().text();
        const bool isTold = text == u"\t" || text == QChar(QChar::LineSeparator);
        QCOMPARE(it.fragment().charFormat().boolProperty(SignsByNumber), !isTold);
    }
    QCOMPARE(runs, 9);
}

void OutOfPlaceTest::aFieldShowsNothingThatNoLineHas() {
    QTextDocument document;
    readFile(document, "{\\field{\\*\\fldinst EQ a\\u3?\\u0?b\\u-4?}}");
    QCOMPARE(document.toPlainText(), QStringLiteral("ab"));
    QVERIFY(writeRtf(document).contains("\\fldinst"));
}

void OutOfPlaceTest::aFieldAheadOfTheFontsLooksAsTextThere() {
    QTextDocument document;
    readRtf("{\\rtf1{\\field{\\fldinst EQ (a)}\\deff3{\\fonttbl{\\f3 Three;}}}b}", document);
    QCOMPARE(document.toPlainText(), QStringLiteral("(a)b"));
    QCOMPARE(familyOf(document, QStringLiteral("(a)")), QStringLiteral("Three"));
}

void OutOfPlaceTest::aFieldLooksAsItsOwnInstruction() {
    QTextDocument document;
    readFile(document, "{\\field{\\field\\fldinst(}{\\fldinst EQ\\b (a)}}");
    QVERIFY(document.find(QStringLiteral("(a)")).charFormat().fontWeight() == QFont::Bold);
}

void OutOfPlaceTest::textForReadersOfUnicodeInAShapeIsNoFrame() {
    QTextDocument document;
    readFile(document, "a{\\shp\\shpinst{\\upr{{\\shptxt b}}}{\\sn pib}{\\sv{\\pict 0102}}}");
    QVERIFY(document.toPlainText().contains(QChar::ObjectReplacementCharacter));
}

void OutOfPlaceTest::aCellThatEndsABoxBesideAPictureIsText() {
    QTextDocument document;
    readFile(document, "{\\shp\\shpinst{\\sn pib}{\\shptxt b\\row\\cell}{\\sv{\\pict 0102}}}");
    QVERIFY(!writeRtf(document).contains("\\shp"));
}

void OutOfPlaceTest::theSideOfALabelOfAListThatNobodyKnowsIsNotTold() {
    QTextDocument document;
    readFile(document, "{\\pn\\pnqr\\pnlvlblt}\\ls1 a\\par{\\pn\\pnlvlblt}b");
    QCOMPARE(document.firstBlock().textList(), document.lastBlock().textList());
}

void OutOfPlaceTest::aShapeInACellKnowsTheLookOfTextBehindTheHead() {
    const auto written = [](const QByteArray& ahead) {
        QTextDocument document;
        readRtf("{\\rtf1{\\stylesheet}" + ahead + "\\intbl{\\shp{\\shptxt b}}\\cell\\cellx1\\row}",
                document);
        return writeRtf(document);
    };
    const QByteArray look = "{\\plain{\\shp";
    QVERIFY(written("a\\par").contains(look));
    QVERIFY(written("\\intbl a").contains(look));
}

void OutOfPlaceTest::aTabIsPartOfTheNameOfAProperty() {
    QTextDocument document;
    readFile(document, "a{\\shp\\shpinst{\\sn pib\\tab}{\\sv{\\pict 0102}}}b");
    QCOMPARE(document.toPlainText(), QStringLiteral("ab"));
    readFile(document, "a{\\shp\\shpinst{\\sn pib }{\\sv{\\pict 0102}}}b");
    QCOMPARE(document.toPlainText(), QStringLiteral("a\ufffcb"));
}

void OutOfPlaceTest::aFormulaThatItsCopyShowsAsAPictureIsNone() {
    QTextDocument document;
    readFile(document, "a{\\mmath{\\*\\listid\\shpinst{\\sn pib}{\\sv{\\pict 0102}}}}b");
    QVERIFY(!writeRtf(document).contains("\\mmath"));
}

void OutOfPlaceTest::aSignThatIsNoCharacterStandsForNoneInWhatIsKept() {
    QTextDocument document;
    readFile(document, "a{\\*\\bkmkstart \\u8364\\:??}b");
    QVERIFY(writeRtf(document).contains("{\\*\\bkmkstart\\'80\\:?}"));
}

void OutOfPlaceTest::anInstructionInAnInstructionIsNoneOfItsText() {
    QTextDocument document;
    readFile(document, "{\\field{{\\fldinst{\\fldinst r}HYPERLINK t}}\\fldrslt a}");
    QCOMPARE(document.toPlainText(), QStringLiteral("a"));
    QVERIFY(!writeRtf(document).contains("\\fldinst r"));
}

void OutOfPlaceTest::aShapeThatIsKeptInAFieldEndsNothingOfIt() {
    QTextDocument document;
    readFile(document, "{\\field{\\fldinst A}{\\fldrslt b{\\shp{\\shptxt\\par}}}}");
    QVERIFY(writeRtf(document).contains("\\fldinst A"));
}

void OutOfPlaceTest::aShapeInTheOtherFormOfAPictureIsNotKept() {
    QTextDocument document;
    readFile(document, "\\intbl\\cellx1{\\pict 0102}{\\nonshppict\\shp{\\shptxt{\\pict 0304}}}");
    QCOMPARE(document.toPlainText().count(QChar::ObjectReplacementCharacter), 1);
}

void OutOfPlaceTest::aFrameHoldsNoOtherFormOfItsPicture() {
    QTextDocument document;
    readFile(document, "{\\shp\\shpinst{\\sn pib}{\\sv{\\pict 0102}{\\nonshppict}"
                       "{\\nonshppict{\\pict 0304}}}}");
    QCOMPARE(document.toPlainText(), QStringLiteral("\ufffc"));
}

void OutOfPlaceTest::aSectionThatEndsInAShapeInATextDissolvesTheShapeAround() {
    QTextDocument document;
    readFile(document, "{\\shp{\\shptxt a}{\\shptxt b{\\shpinst{\\shptxt\\sect c}}}}");
    QVERIFY(!writeRtf(document).contains("\\shp"));
}

void OutOfPlaceTest::dataInAGroupOfAPictureAreKeptWithIt() {
    QTextDocument document;
    readFile(document, "\\intbl\\cellx1{\\shp{\\shptxt a{\\pict{\\bin2 xy}}}}\\cell\\row");
    QVERIFY(writeRtf(document).contains("{\\pict{7879}}"));
}

void OutOfPlaceTest::whatStandsBehindARowWithoutEndMakesNone() {
    QTextDocument document;
    readFile(document, "a\\cellx1\\intbl\\row\\par{\\*\\bkmkstart b}");
    QCOMPARE(writeRtf(document).count("\\row"), 1);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, OutOfPlaceTest)
#include "out_of_place_test.moc"
