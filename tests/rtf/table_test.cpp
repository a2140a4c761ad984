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

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

QByteArray file(const QByteArray& body) {
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}"
           "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green128\\blue0;}" +
           body + "}";
}

const QByteArray Row = "\\trowd\\trgaph70\\clbrdrt\\brdrs\\brdrw10\\clcbpat2\\cellx1000"
                       "\\clvmgf\\cellx2000";

/// A row of a table in a cell.
const QByteArray Nested = "\\pard\\intbl\\itap2 in\\nestcell\\qc ner\\nestcell"
                          "{\\*\\nesttableprops\\trowd\\cellx300\\cellx600\\nestrow}"
                          "{\\nonesttables\\par}";

/// What is written of a document, which must be written the same once it is read again.
QByteArray written(const QTextDocument& document) {
    const QByteArray rtf = writeRtf(document);
    QTextDocument again;
    readRtf(rtf, again);
    if (again.toRawText() != document.toRawText()) {
        qInfo().noquote() << rtf;
        return "other text";
    }
    if (writeRtf(again) != rtf) {
        qInfo().noquote() << rtf << writeRtf(again);
        return "not stable";
    }
    return rtf;
}

} // namespace

class TableTest : public QObject {
    Q_OBJECT
private slots:
    void aTableIsATableAgain();
    void cellsKeepTheirParagraphs();
    void aCellOfSeveralParagraphsStaysOne();
    void emptyCellsStay_data();
    void emptyCellsStay();
    void bordersAndShadingOfCellsStay();
    void theShapeOfARowMayComeBehindItsCellsToo();
    void aRowWhoseTabIsGoneIsText();
    void joinedRowsAreText();
    void aDeletedRowTakesItsShapeAlong();
    void aRowKeepsTheCellsThatItHas_data();
    void aRowKeepsTheCellsThatItHas();
    void anUnevenRowWhoseTabIsGoneIsText();
    void aCellAheadOfAllRowsStaysOne();
    void aCellAheadOfAllRowsIsNoneBehindOne();
    void anEmptyParagraphOfATableStaysInIt();
    void aRowWhoseEmptyParagraphIsJoinedStaysOne();
    void whatIsAnchoredBehindACellStaysInItsRow();
    void aRowBehindOneThatIsTextIsARow();
    void aRowThatNeverEndsBehindAnItemIsText();
    void aRowAtTheEndOfABoxStaysTheLast();
    void pagesBehindARowThatNeverEndsStay();
    void aTabInACellIsText();
    void aPictureThatIsAShapeStandsInItsCell();
    void aPartOfARowIsText();
    void wholeRowsOfAPartAreATable();
    void aTableInACellStaysOne();
    void aTableInATableInACellStaysOne();
    void aTableInACellThatSomebodyHasTornIsText();
    void aTornRowLeavesNothingOfATableInIt();
    void aParagraphIsPartedWithinACellOfATableInACell();
    void aTableInACellIsReadableText_data();
    void aTableInACellIsReadableText();
    void aFloodOfTablesInACellIsBounded();
    void aLinkInACellEndsWithIt();
    void aSectionMayBeginWithATable();
    void aFloodOfRowsIsBounded();
    void aNumberAtTheEndOfARowStays();
    void theNumberOfOneCellOfSeveralIsNotShownAheadOfAll();
    void anItemBehindWhichARowIsLeftOpenStaysOne();
};

void TableTest::aTableIsATableAgain() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl one\\cell two\\cell\\row\\pard after\\par"), document)
                .ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("one\ttwo\nafter"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("\\trowd\\trgaph70\\clcbpat1\\clbrdrt\\brdrs\\brdrw10\\cellx1000"
                          "\\clvmgf\\cellx2000\r\n\\pard\\intbl\\f0\\fs24 one\\cell\r\n"
                          "\\pard\\intbl two\\cell\\row\r\n\\pard after\\par"),
             rtf);
}

void TableTest::cellsKeepTheirParagraphs() {
    QTextDocument document;
    QVERIFY(
        readRtf(
            file(Row +
                 "\\pard\\intbl\\qc\\keep one\\cell\\pard\\intbl\\qr two\\cell\\pard\\intbl\\row"),
            document)
            .ok());
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("\\pard\\intbl\\keep\\qc\\f0\\fs24 one\\cell"), rtf);
    QVERIFY2(rtf.contains("\\pard\\intbl\\qr two\\cell\\row"), rtf);
}

void TableTest::aCellOfSeveralParagraphsStaysOne() {
    QTextDocument document;
    QVERIFY(
        readRtf(file(Row + "\\pard\\intbl one\\par more\\cell two\\par last\\cell\\row"), document)
            .ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("one\nmore\ttwo\nlast"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("one\\par\r\n\\pard\\intbl more\\cell\r\n\\pard\\intbl two\\par\r\n"
                          "last\\cell\\row"),
             rtf);
    QCOMPARE(rtf.count("\\trowd"), 1);
}

void TableTest::emptyCellsStay_data() {
    QTest::addColumn<QByteArray>("cells");
    QTest::newRow("all") << QByteArray("\\cell\\cell");
    QTest::newRow("first") << QByteArray("\\cell x\\cell");
    QTest::newRow("last") << QByteArray("x\\cell\\cell");
    QTest::newRow("bold, behind what is not") << QByteArray("x\\cell\\b\\cell");
}

void TableTest::emptyCellsStay() {
    QFETCH(QByteArray, cells);
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl " + cells + "\\row\\pard y\\par"), document).ok());
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\cell\r\n"), 1);
    QCOMPARE(rtf.count("\\cell\\row"), 1);
}

void TableTest::bordersAndShadingOfCellsStay() {
    QTextDocument document;
    const QByteArray row =
        "\\trowd\\trqc\\trhdr\\trftsWidth3\\trwWidth5000\\trbrdrt\\brdrs\\brdrw20"
        "\\clmgf\\clvertalc\\clftsWidth3\\clwWidth900\\clbrdrl\\brdrdb\\brdrcf1\\cellx900"
        "\\clmrg\\cellx1800";
    QVERIFY(readRtf(file(row + "\\pard\\intbl a\\cell\\cell\\row"), document).ok());
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("\\trowd\\trqc\\trhdr\\trftsWidth3\\trwWidth5000\\trbrdrt\\brdrs\\brdrw20"
                          "\\clmgf\\clvertalc\\clftsWidth3\\clwWidth900\\clbrdrl\\brdrdb\\brdrcf1"
                          "\\cellx900\\clmrg\\cellx1800\r\n"),
             rtf);
}

void TableTest::theShapeOfARowMayComeBehindItsCellsToo() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl\\qc one\\cell two\\cell\\pard{" + Row +
                         "\\row}\\pard y\\par"),
                    document)
                .ok());
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\trowd"), 1);
    QVERIFY2(rtf.contains("\\pard\\intbl\\qc two\\cell\\row"), rtf);
}

void TableTest::aRowWhoseTabIsGoneIsText() {
    QTextDocument document;
    QVERIFY(
        readRtf(file(Row + "\\pard\\intbl one\\cell two\\cell\\row\\pard y\\par"), document).ok());
    QTextCursor cursor(&document);
    cursor.setPosition(3);
    cursor.deleteChar();
    const QByteArray rtf = written(document);
    QVERIFY2(!rtf.contains("\\trowd") && !rtf.contains("\\cell") && !rtf.contains("\\intbl"), rtf);
    QVERIFY2(rtf.contains("onetwo\\par"), rtf);
}

void TableTest::joinedRowsAreText() {
    QTextDocument document;
    const QByteArray row = Row + "\\pard\\intbl a\\cell b\\cell\\row";
    QVERIFY(readRtf(file(row + row + row), document).ok());
    QCOMPARE(written(document).count("\\trowd"), 3);
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.deletePreviousChar();
    QCOMPARE(document.toPlainText(), QStringLiteral("a\tba\tb\na\tb"));
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\trowd"), 1);
    QVERIFY2(rtf.contains("a\\tab ba\\tab b\\par"), rtf);
}

void TableTest::aDeletedRowTakesItsShapeAlong() {
    QTextDocument document;
    const QByteArray row = Row + "\\pard\\intbl a\\cell b\\cell\\row";
    QVERIFY(readRtf(file(row + row + row), document).ok());
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QCOMPARE(written(document).count("\\trowd"), 2);
}

void TableTest::aRowKeepsTheCellsThatItHas_data() {
    QTest::addColumn<QByteArray>("cells");
    QTest::addColumn<QString>("text");
    QTest::newRow("more than it should")
        << QByteArray("a\\cell b\\cell c\\cell") << QStringLiteral("a\tb\tc");
    QTest::newRow("fewer") << QByteArray("a\\cell") << QStringLiteral("a");
    QTest::newRow("more, in paragraphs")
        << QByteArray("a\\cell b\\par c\\cell d\\cell") << QStringLiteral("a\tb\nc\td");
}

void TableTest::aRowKeepsTheCellsThatItHas() {
    QFETCH(QByteArray, cells);
    QFETCH(QString, text);
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl " + cells + "\\row" + Row +
                         "\\intbl x\\cell y\\cell\\row"),
                    document)
                .ok());
    QCOMPARE(document.toPlainText(), text + QStringLiteral("\nx\ty"));
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\trowd"), 2);
    QCOMPARE(rtf.count("\\row"), 2);
    QCOMPARE(rtf.count("\\cell\r") + rtf.count("\\cell\\"), cells.count("\\cell") + 2);
    QVERIFY2(!rtf.contains("\\tab"), rtf);
}

void TableTest::anUnevenRowWhoseTabIsGoneIsText() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\trowd\\cellx1000\\pard\\intbl a\\cell b\\cell c\\cell\\row"), document)
                .ok());
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    cursor.deleteChar();
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("ab\\tab c\\par") && !rtf.contains("\\trowd"), rtf);
}

void TableTest::aCellAheadOfAllRowsStaysOne() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\pard a\\cell\\b b\\cell\\par c\\tab d\\par"), document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("a\tb\t\nc\td"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("a\\cell\\b b\\cell\\par"), rtf);
    QVERIFY2(rtf.contains("c\\tab d\\par"), rtf);
}

void TableTest::aCellAheadOfAllRowsIsNoneBehindOne() {
    QTextDocument document;
    const QByteArray row = Row + "\\pard\\intbl x\\cell y\\cell\\row";
    QVERIFY(readRtf(file("\\pard a\\cell b\\par" + row), document).ok());
    QTextCursor cursor(&document);
    cursor.insertText(QStringLiteral("\n"));
    cursor.movePosition(QTextCursor::Start);
    QVERIFY(insertRtf(file(row), cursor).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("x\ty\na\tb\nx\ty"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("a\\tab b\\par"), rtf);
    QCOMPARE(rtf.count("\\trowd"), 2);
}

void TableTest::anEmptyParagraphOfATableStaysInIt() {
    const QByteArray given =
        file(Row + "\\pard\\intbl one\\cell two\\cell\\row\\par\\pard after\\par");
    QTextDocument document;
    QVERIFY(readRtf(given, document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("one\ttwo\n\nafter"));
    QVERIFY2(written(document).contains("\\row\r\n\\pard\\intbl\\par\r\n\\pard after"),
             written(document));
    // Its text would be lost to some readers there.
    QTextCursor(document.findBlockByNumber(1)).insertText(QStringLiteral("new"));
    QVERIFY2(written(document).contains("\\row\r\n\\pard new\\par\r\n"), written(document));
    // Without a row there is no table.
    QTextDocument alone;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl\\par\\pard after\\par"), alone).ok());
    QVERIFY2(!written(alone).contains("\\intbl"), written(alone));
}

void TableTest::whatIsAnchoredBehindACellStaysInItsRow() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row +
                         "\\pard\\intbl one\\cell{\\*\\bkmkstart a}two\\cell{\\*\\bkmkend a}\\row"),
                    document)
                .ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("one\ttwo"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("one\\cell\r\n\\pard\\intbl{\\*\\bkmkstart a}two"), rtf);
    QVERIFY2(rtf.contains("two{\\*\\bkmkend a}\\cell\\row"), rtf);
    QTextDocument empty;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl\\cell{\\*\\bkmkstart a}\\cell{\\*\\bkmkend a}\\row"),
                    empty)
                .ok());
    QVERIFY2(written(empty).contains("{\\*\\bkmkend a}\\cell\\row"), written(empty));
}

void TableTest::aRowBehindOneThatIsTextIsARow() {
    QTextDocument document;
    QVERIFY(
        readRtf(file(Row + "\\pard\\intbl a\\cell b\\cell c\\row x\\cell y\\cell\\row"), document)
            .ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("a\tb\tc\nx\ty"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("a\\tab b\\tab c\\par") && rtf.contains("y\\cell\\row"), rtf);
}

void TableTest::aRowWhoseEmptyParagraphIsJoinedStaysOne() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl one\\cell two\\par\\par\\cell\\row"), document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("one\ttwo\n\n"));
    QTextCursor cursor(document.findBlockByNumber(1));
    cursor.deleteChar();
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("\\trowd") && rtf.endsWith("\\cell\\row\r\n}\r\n"), rtf);
}

void TableTest::aRowThatNeverEndsBehindAnItemIsText() {
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\*\\listtable{\\list{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00.;}}"
                    "\\listid1}}{\\*\\listoverridetable{\\listoverride\\listid1\\ls1}}"
                    "\\trowd\\cellx1000\\pard\\intbl\\ls1 a\\par b\\par\\pard\\ls1 c\\par}",
                    document)
                .ok());
    const QByteArray rtf = written(document);
    for (const char* item : {"{\\listtext 1.\\tab}\\ls1\\ilvl0\\fs24 a\\par",
                             "{\\listtext 2.\\tab}b\\par", "{\\listtext 3.\\tab}c\\par"})
        QVERIFY2(rtf.contains(item), rtf);
}

void TableTest::aRowAtTheEndOfABoxStaysTheLast() {
    const QByteArray box = "{\\shp{\\*\\shpinst{\\shptxt\\trowd\\cellx900\\pard\\intbl a";
    for (const QByteArray end : {"\\cell\\row\\par", "\\cell\\row", "\\par"}) {
        QTextDocument document;
        QVERIFY(readRtf(file("x" + box + end + "}}}y\\par"), document).ok());
        const QByteArray rtf = written(document);
        QVERIFY2(rtf.contains("a\\cell\\row"), rtf);
    }
    QTextDocument loose;
    QVERIFY(
        readRtf(file("x{\\shp{\\*\\shpinst{\\shptxt a}}{\\cell\\row\\par}}y\\par"), loose).ok());
    QVERIFY2(!written(loose).contains("shp"), written(loose));
}

void TableTest::pagesBehindARowThatNeverEndsStay() {
    QTextDocument document;
    QVERIFY(
        readRtf(file("\\trowd\\cellx9\\pard\\intbl a\\page\\pard b\\page c\\par"), document).ok());
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("a\\cell\\row\r\n\\pard\\page b\\page\r\nc\\par"), rtf);
}

void TableTest::aTabInACellIsText() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl a\\tab b\\cell c\\cell\\row"), document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("a\tb\tc"));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("a\\tab b\\cell\r\n\\pard\\intbl c\\cell\\row"), rtf);
}

void TableTest::aPictureThatIsAShapeStandsInItsCell() {
    QTextDocument document;
    readRtf(file("\\trowd\\cellx99\\cellx200\\intbl a\\cell{\\shp{\\*\\shpinst{\\sp{\\sn pib}"
                 "{\\sv{\\pict\\pngblip 89504e47}}}}}\\cell\\row"),
            document);
    QCOMPARE(document.toPlainText(), QStringLiteral("a\t\ufffc"));
    QCOMPARE(writeRtf(document).count("\\cell\r"), 1);
    QVERIFY(writeRtf(document).contains("\\cell\\row"));
}

void TableTest::aPartOfARowIsText() {
    QTextDocument document;
    QVERIFY(
        readRtf(file(Row + "\\pard\\intbl one\\cell two\\cell\\row\\pard y\\par"), document).ok());
    const QByteArray rtf = writeRtf(document, 1, 6);
    QVERIFY2(rtf.contains("ne\\tab tw\\par") && !rtf.contains("\\trowd"), rtf);
}

void TableTest::wholeRowsOfAPartAreATable() {
    QTextDocument document;
    const QByteArray row = Row + "\\pard\\intbl a\\cell b\\cell\\row";
    QVERIFY(readRtf(file("x\\par" + row + row + "\\pard y\\par"), document).ok());
    const QByteArray rtf = writeRtf(document, 2, 5);
    QCOMPARE(rtf.count("\\trowd"), 1);
    QTextDocument target;
    QTextCursor cursor(&target);
    QVERIFY(insertRtf(rtf, cursor).ok());
    QCOMPARE(target.toPlainText(), QStringLiteral("a\tb"));
    QCOMPARE(written(target).count("\\trowd"), 1);
}

void TableTest::aTableInACellStaysOne() {
    QTextDocument document;
    QVERIFY(
        readRtf(file(Row + "\\pard\\intbl a\\par" + Nested + "\\pard\\intbl\\cell b\\cell\\row"),
                document)
            .ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("a\nin\tner\n\tb"));
    const QByteArray rtf = written(document);
    QVERIFY2(
        rtf.contains("a\\par\r\n\\pard\\intbl\\itap2 in\\nestcell\r\n\\pard\\intbl\\itap2\\qc ner"
                     "\\nestcell{\\*\\nesttableprops\\trowd\\cellx300\\cellx600\\nestrow}"
                     "{\\nonesttables\\par}\r\n\\pard\\intbl\\cell\r\n\\pard\\intbl b\\cell\\row"),
        rtf);
}

void TableTest::aTableInATableInACellStaysOne() {
    QTextDocument document;
    const QByteArray deepest = "\\pard\\intbl\\itap3 x\\nestcell y\\par z\\nestcell"
                               "{\\*\\nesttableprops\\trowd\\cellx100\\cellx200\\nestrow}";
    QVERIFY(readRtf(file(Row + deepest + deepest + Nested + Nested +
                         "\\pard\\intbl\\cell b\\cell\\row"),
                    document)
                .ok());
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\nestrow"), 4);
    QCOMPARE(rtf.count("\\itap3"), 4);
    QVERIFY2(!rtf.contains("\\tab "), rtf);
}

void TableTest::aTableInACellThatSomebodyHasTornIsText() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + Nested + "\\pard\\intbl\\cell b\\cell\\row"), document).ok());
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    cursor.deleteChar();
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\trowd"), 1);
    QVERIFY2(rtf.contains("inner\\par") && rtf.contains("b\\cell\\row"), rtf);
    QVERIFY2(!rtf.contains("\\itap") && !rtf.contains("nest"), rtf);
}

void TableTest::aTornRowLeavesNothingOfATableInIt() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + Nested + "\\pard\\intbl c\\cell b\\cell\\row"), document).ok());
    QTextCursor cursor = document.find(QStringLiteral("c"));
    cursor.setPosition(cursor.selectionEnd());
    cursor.deleteChar();
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("in\\tab ner\\par") && rtf.contains("cb\\par"), rtf);
    QVERIFY2(!rtf.contains("\\itap") && !rtf.contains("nest") && !rtf.contains("\\trowd"), rtf);
}

void TableTest::aParagraphIsPartedWithinACellOfATableInACell() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + Nested + "\\pard\\intbl\\cell b\\cell\\row"), document).ok());
    QTextCursor cursor = document.find(QStringLiteral("n"), 2);
    QTextBlockFormat further = cursor.blockFormat();
    further.clearProperty(RowBegins);
    cursor.insertBlock(further);
    QCOMPARE(document.toPlainText(), QStringLiteral("in\t\ner\n\tb"));
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\nestcell"), 2);
    QVERIFY2(rtf.contains("\\qc\\par\r\ner\\nestcell{\\*\\nesttableprops"), rtf);
}

void TableTest::aTableInACellIsReadableText_data() {
    QTest::addColumn<QByteArray>("nested");
    QTest::newRow("without what shapes it")
        << QByteArray("\\pard\\intbl\\itap2 in\\nestcell ner\\nestcell\\nestrow");
    QTest::newRow("without what nests it")
        << QByteArray("\\pard\\intbl in\\nestcell ner\\nestcell"
                      "{\\*\\nesttableprops\\trowd\\cellx300\\cellx600\\nestrow}");
    QTest::newRow("without end") << QByteArray("\\pard\\intbl\\itap2 in\\nestcell ner\\par");
}

void TableTest::aTableInACellIsReadableText() {
    QFETCH(QByteArray, nested);
    QTextDocument document;
    QVERIFY(readRtf(file(Row + nested + "\\pard\\intbl\\cell b\\cell\\row"), document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("in\tner\n\tb"));
    const QByteArray rtf = written(document);
    QCOMPARE(rtf.count("\\trowd"), 1);
    QVERIFY2(rtf.contains("in\\tab ner\\par"), rtf);
}

void TableTest::aFloodOfTablesInACellIsBounded() {
    QByteArray flood = Row + "\\pard\\intbl\\itap2 ";
    for (int i = 0; i < 6000; ++i)
        flood += "a\\nestcell{\\*\\nesttableprops\\trowd\\cellx9\\nestrow}";
    for (int i = 0; i < 2000; ++i)
        flood += "{\\*\\nesttableprops" + QByteArray(100, 'x');
    QTextDocument document;
    readRtf(file(flood), document);
    QVERIFY(document.blockCount() >= 6000);
    QSet<QString> kept;
    for (const QTextFormat& format : document.allFormats())
        kept.insert(format.stringProperty(NestedRow));
    QVERIFY2(kept.size() > 1000 && kept.size() < 5000, QByteArray::number(kept.size()));
}

void TableTest::aLinkInACellEndsWithIt() {
    QTextDocument document;
    QVERIFY(readRtf(file(Row + "\\pard\\intbl{\\field{\\*\\fldinst{HYPERLINK \"http://a.b/\"}}"
                               "{\\fldrslt one\\cell two}}\\cell\\row"),
                    document)
                .ok());
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("one}}\\f0\\fs24\\cell"), rtf);
}

void TableTest::aSectionMayBeginWithATable() {
    QTextDocument document;
    QVERIFY(readRtf(file("x\\sect\\sectd\\cols2" + Row + "\\pard\\intbl one\\cell two\\cell\\row"),
                    document)
                .ok());
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("x\\sect\\sectd\\cols2\r\n\\trowd"), rtf);
}

void TableTest::aFloodOfRowsIsBounded() {
    QByteArray flood = "\\trowd";
    for (int i = 0; i < 1000; ++i)
        flood += "\\clbrdrt\\brdrs\\brdrw7\\clbrdrb\\brdrs\\cellx" + QByteArray::number(i);
    for (int i = 0; i < 100000; ++i)
        flood += "\\trgaph" + QByteArray::number(i) + "\\cell\\row";
    QTextDocument document;
    QVERIFY(readRtf(file(flood), document).ok());
    QVERIFY(document.blockCount() > 10000);
    QSet<QString> kept;
    for (const QTextFormat& format : document.allFormats())
        kept.insert(format.stringProperty(TableRow));
    QVERIFY2(kept.size() < 5000, QByteArray::number(kept.size()));
}

void TableTest::aNumberAtTheEndOfARowStays() {
    QTextDocument document;
    readRtf(file("\\trowd\\cellx900\\pard\\intbl{\\*\\pn\\pnlvlbody\\pnstart7\\pndec{\\pntxta .}}"
                 "one\\cell\\row"),
            document);
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("7."));
    const QByteArray rtf = written(document);
    QVERIFY2(rtf.contains("\\pnstart7\\pndec{\\pntxta.}}\\intbl\\f0\\fs24 one\\cell\\row"), rtf);
}

void TableTest::theNumberOfOneCellOfSeveralIsNotShownAheadOfAll() {
    QTextDocument document;
    readRtf(file("\\trowd\\cellx900\\cellx1800\\pard\\intbl one\\cell"
                 "{\\*\\pn\\pnlvlbody\\pndec{\\pntxta .}}two\\cell\\row"),
            document);
    QCOMPARE(document.toPlainText(), QStringLiteral("one\ttwo"));
    QVERIFY(!document.firstBlock().textList());
}

void TableTest::anItemBehindWhichARowIsLeftOpenStaysOne() {
    const QByteArray lists =
        "{\\listtable{\\list\\listlevel{\\leveltext\\'01\\'00}\\listlevel{\\leveltext"
        "\\'02\\'00\\'01}\\listid7}}{\\listoverridetable{\\listoverride\\listid7\\ls1}}";
    QTextDocument document;
    readRtf(file(lists + "\\ls1{\\trowd\\cellx900\\intbl one\\par two\\par}\\ilvl1 three\\par"),
            document);
    const QByteArray rtf = written(document);
    QVERIFY2(!rtf.contains("\\row"), rtf);
    QTextDocument again;
    readRtf(rtf, again);
    for (const QTextDocument* read : {&document, &again}) {
        QCOMPARE(shownLabel(read->firstBlock().next()), QStringLiteral("2"));
        QCOMPARE(shownLabel(read->lastBlock()), QStringLiteral("21"));
    }
    QCOMPARE(written(again), rtf);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, TableTest)
#include "table_test.moc"
