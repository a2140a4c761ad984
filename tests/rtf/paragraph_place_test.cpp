// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/formats/format_readers.h"
#include "rtf/formats/list_formats.h"
#include "rtf/formats/paragraph_place.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextList>

#include <cmath>

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

QByteArray fileOf(const QByteArray& body) {
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Liberation Sans;}}\\f0\\fs20" + body + "}";
}

void lay(QTextDocument& document) {
    document.setDocumentMargin(0);
    document.setTextWidth(576);
    document.documentLayout()->documentSize();
}

/// Where a character of a paragraph stands, in twips from the document's left edge.
int placeOf(const QTextDocument& document, int paragraph, int character) {
    const QTextBlock block = document.findBlockByNumber(paragraph);
    const QTextLine line = block.layout()->lineForTextPosition(character);
    const double x = block.layout()->position().x() + line.cursorToX(character);
    return int(std::lround(x * TwipsPerPixel));
}

/// The places of the capital letters of a paragraph.
QList<int> capitals(const QByteArray& body, int paragraph = 0) {
    QTextDocument document;
    readRtf(fileOf(body), document);
    lay(document);
    QList<int> places;
    const QString text = document.findBlockByNumber(paragraph).text();
    for (int at = 0; at < text.size(); ++at)
        if (text[at].isUpper())
            places << placeOf(document, paragraph, at);
    return places;
}

/// What was found where it is not what was expected, within a pixel.
QString apart(const QList<int>& found, const QList<int>& expected) {
    constexpr int Pixel = 15;
    bool alike = found.size() == expected.size();
    QString told;
    for (qsizetype i = 0; i < found.size(); ++i) {
        alike = alike && std::abs(found[i] - expected[i]) <= Pixel;
        told += QString::number(found[i]) + u' ';
    }
    return alike ? QString() : told;
}

QByteArray rewritten(const QByteArray& body) {
    QTextDocument document;
    readRtf(fileOf(body), document);
    return writeRtf(document);
}

/// A list of one level with an item.
QByteArray listed(const QByteArray& level, const QByteArray& item) {
    return "{\\*\\listtable{\\list{\\listlevel\\levelnfc0" + level +
           "{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}}\\listid1}}"
           "{\\*\\listoverridetable{\\listoverride\\listid1\\listoverridecount0\\ls1}}"
           "\\pard\\ls1\\ilvl0" +
           item;
}

} // namespace

class ParagraphPlaceTest : public QObject {
    Q_OBJECT
private slots:
    void tabsLeadToStopsThatCountFromTheMargin_data();
    void tabsLeadToStopsThatCountFromTheMargin();
    void stopsOfAllKindsCountFromTheMargin();
    void stepsFollowTheDistanceOfTheFile();
    void whatIsInsertedTakesTheStepsOfItsDocument();
    void nothingStandsLeftOfTheMargin_data();
    void nothingStandsLeftOfTheMargin();
    void theStopsOfTheFileAreWrittenAgain_data();
    void theStopsOfTheFileAreWrittenAgain();
    void everyLeaderBelongsToItsStop();
    void textBehindALabelBeginsWhereTheListSays_data();
    void textBehindALabelBeginsWhereTheListSays();
    void aLabelBeginsAtTheHangingIndent();
    void anItemThatRunsToTheLeftHangsOnTheRight_data();
    void anItemThatRunsToTheLeftHangsOnTheRight();
    void aLabelLongerThanItsRoomPushesTheTextOn();
    void whatAListSaysOfItsLabelsIsWrittenAgain_data();
    void whatAListSaysOfItsLabelsIsWrittenAgain();
};

void ParagraphPlaceTest::tabsLeadToStopsThatCountFromTheMargin_data() {
    QTest::addColumn<QByteArray>("shape");
    QTest::addColumn<QList<int>>("places");
    const auto row = [](const char* name, const QByteArray& shape, const QList<int>& places) {
        QTest::newRow(name) << shape << places;
    };
    row("no stops", "", {0, 720, 1440});
    row("indent", "\\li500", {500, 720, 1440});
    row("first line further in", "\\li300\\fi300", {600, 1440, 2160});
    row("hanging", "\\fi-360\\li720", {360, 720, 1440});
    row("hanging further than a step", "\\fi-1440\\li1440", {0, 1440, 2160});
    row("hanging, and a stop behind", "\\fi-360\\li720\\tx2000", {360, 720, 2000});
    row("hanging, and a stop within", "\\fi-700\\li700\\tx400", {0, 400, 700});
    row("one stop", "\\tx1000", {0, 1000, 1440});
    row("stops out of order", "\\tx2000\\tx1000", {0, 1000, 2000});
    row("stops that the line has passed", "\\li900\\tx400\\tx800", {900, 1440, 2160});
    row("stop where the line hangs", "\\fi-360\\li720\\tx720", {360, 720, 1440});
}

void ParagraphPlaceTest::tabsLeadToStopsThatCountFromTheMargin() {
    QFETCH(QByteArray, shape);
    QFETCH(QList<int>, places);
    QCOMPARE(apart(capitals("\\pard" + shape + " A\\tab B\\tab C\\par"), places), QString());
}

void ParagraphPlaceTest::stopsOfAllKindsCountFromTheMargin() {
    QTextDocument document;
    readRtf(fileOf("\\pard\\li500\\tqr\\tx3000\\tqc\\tx5000\\tqdec\\tx7000"
                   " a\\tab right\\tab middle\\tab 12.5\\par"),
            document);
    lay(document);
    QVERIFY(std::abs(placeOf(document, 0, 7) - 3000) <= 15);
    QVERIFY(std::abs((placeOf(document, 0, 8) + placeOf(document, 0, 14)) / 2 - 5000) <= 15);
    // The sign itself stands in the middle.
    QVERIFY(std::abs((placeOf(document, 0, 17) + placeOf(document, 0, 18)) / 2 - 7000) <= 45);
}

void ParagraphPlaceTest::stepsFollowTheDistanceOfTheFile() {
    QCOMPARE(apart(capitals("\\deftab1000\\pard\\li300 A\\tab B\\tab C\\par"),
                   (QList<int>{300, 1000, 2000})),
             QString());
}

void ParagraphPlaceTest::whatIsInsertedTakesTheStepsOfItsDocument() {
    QTextDocument document;
    readRtf(fileOf("\\deftab1000 X\\par"), document);
    QTextCursor cursor(&document);
    insertRtf(fileOf("\\deftab400\\pard\\li300 A\\tab B\\par"), cursor);
    lay(document);
    const QTextBlock block = document.firstBlock();
    QCOMPARE(block.text().left(3), QStringLiteral("A\tB"));
    readRtf(writeRtf(document), document);
    lay(document);
    QVERIFY(std::abs(placeOf(document, 0, 2) - 1000) <= 15);
}

void ParagraphPlaceTest::nothingStandsLeftOfTheMargin_data() {
    QTest::addColumn<QByteArray>("shape");
    QTest::addColumn<QList<int>>("places"); // of the first line, a tab in it, and the next line
    QTest::newRow("first line") << QByteArray("\\fi-360") << QList<int>{0, 360, 360};
    QTest::newRow("all lines") << QByteArray("\\li-500") << QList<int>{0, 500, 0};
    QTest::newRow("lines behind the first")
        << QByteArray("\\fi700\\li-500") << QList<int>{700, 1220, 0};
    QTest::newRow("first line further than the others")
        << QByteArray("\\fi-300\\li-200") << QList<int>{0, 300, 300};
}

void ParagraphPlaceTest::nothingStandsLeftOfTheMargin() {
    QFETCH(QByteArray, shape);
    QFETCH(QList<int>, places);
    QCOMPARE(apart(capitals("\\pard" + shape + " A\\tab B\\line C\\par"), places), QString());
    QVERIFY(rewritten("\\pard" + shape + " A\\par").contains(shape.right(7)));
    QTextDocument document;
    readRtf(fileOf("\\pard" + shape + " A\\par"), document);
    QTextBlockFormat format = document.firstBlock().blockFormat();
    const int left = int(std::lround(format.leftMargin() * TwipsPerPixel));
    const int overhang = overhangOf(format);
    QVERIFY(overhang > 0);
    standAcrossMargin(format);
    QCOMPARE(int(std::lround(format.leftMargin() * TwipsPerPixel)), left - overhang);
    QCOMPARE(overhangOf(format), 0);
}

void ParagraphPlaceTest::theStopsOfTheFileAreWrittenAgain_data() {
    QTest::addColumn<QByteArray>("shape");
    for (const char* shape :
         {"\\fi-360\\li720", "\\li500", "\\tx1000", "\\tx2000\\tx1000", "\\fi-360\\li720\\tx720",
          "\\li900\\tx400\\tx800", "\\fi-700\\li700\\tqr\\tx400\\tqc\\tldot\\tx3000",
          "\\fi-900\\tqdec\\tx300", "\\li333\\tx0", "\\tldot\\tx5000", "\\tlmdot\\tx5000",
          "\\tlhyph\\tx5000", "\\tlul\\tx5000", "\\tlth\\tx5000", "\\tqr\\tleq\\tx5000\\tx6000"})
        QTest::newRow(shape) << QByteArray(shape);
}

void ParagraphPlaceTest::theStopsOfTheFileAreWrittenAgain() {
    QFETCH(QByteArray, shape);
    const QByteArray written = rewritten("\\pard" + shape + " a\\tab b\\par");
    QVERIFY2(written.contains("\\pard" + shape + "\\f0"), written.constData());
    QTextDocument document;
    readRtf(written, document);
    QCOMPARE(writeRtf(document), written);
}

void ParagraphPlaceTest::everyLeaderBelongsToItsStop() {
    QTextDocument document;
    readRtf(fileOf("\\pard\\li500\\tldot\\tx2000\\tx3000\\tlul\\tx400\\tlhyph\\tx4000 a\\par"),
            document);
    const QTextBlockFormat format = document.firstBlock().blockFormat();
    QCOMPARE(leaderBehind(format, 10), TabLeader::Dots);
    QCOMPARE(leaderBehind(format, 1500 / TwipsPerPixel), TabLeader::None);
    QCOMPARE(leaderBehind(format, 2600 / TwipsPerPixel), TabLeader::Hyphens);
    QCOMPARE(leaderBehind(format, 3600 / TwipsPerPixel), TabLeader::None);
}

void ParagraphPlaceTest::textBehindALabelBeginsWhereTheListSays_data() {
    QTest::addColumn<QByteArray>("level");
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<QList<int>>("places");
    const auto row = [](const char* name, const QByteArray& level, const QByteArray& item,
                        const QList<int>& places) {
        QTest::newRow(name) << level << item << places;
    };
    const QByteArray hanging = "\\fi-360\\li720";
    row("tab to the hanging indent", "\\levelfollow0", hanging, {720, 1440, 720});
    row("tab to the stop of the level", "\\levelfollow0\\jclisttab\\tx1000", "\\fi-720\\li1440",
        {1000, 1440, 1440});
    row("tab to a stop of the item", "\\levelfollow0", "\\fi-720\\li1440\\jclisttab\\tx1000",
        {1000, 1440, 1440});
    row("tab without an indent", "\\levelfollow0\\jclisttab\\tx1000", "", {1000, 1440, 0});
    row("blank", "\\levelfollow1", hanging, {584, 720, 720});
    row("nothing", "\\levelfollow2", hanging, {527, 720, 720});
    row("right side at the hanging indent", "\\leveljc2", hanging, {720, 1440, 720});
    row("right side, and nothing", "\\leveljc2\\levelfollow2", hanging, {360, 720, 720});
    row("middle, and nothing", "\\leveljcn1\\levelfollow2", hanging, {443, 720, 720});
}

void ParagraphPlaceTest::textBehindALabelBeginsWhereTheListSays() {
    QFETCH(QByteArray, level);
    QFETCH(QByteArray, item);
    QFETCH(QList<int>, places);
    QCOMPARE(apart(capitals(listed(level, item + " A\\tab B\\line C\\par")), places), QString());
}

void ParagraphPlaceTest::aLabelBeginsAtTheHangingIndent() {
    QTextDocument document;
    readRtf(fileOf("\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta.}}"
                   "\\fi-360\\li720 a\\par"),
            document);
    const QTextBlock item = document.firstBlock();
    QVERIFY(hidesLabel(item.blockFormat()));
    QCOMPARE(shownLabel(item), QStringLiteral("1."));
    QCOMPARE(labelOffset(item.blockFormat()), -360);
    readRtf(fileOf("\\pard{\\pntext\\'95}{\\*\\pn\\pnlvlblt{\\pntxtb\\'95}}\\li700 a\\par"),
            document);
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("\u2022"));
    // The text stands at the next step.
    QCOMPARE(labelOffset(document.firstBlock().blockFormat()), -740);
}

void ParagraphPlaceTest::anItemThatRunsToTheLeftHangsOnTheRight_data() {
    QTest::addColumn<QByteArray>("indents");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("onPaper"); // the right one, where there is room beyond the margin
    QTest::newRow("room") << QByteArray("\\fi-360\\li300\\ri720") << 300 << 720 << 720;
    QTest::newRow("no room") << QByteArray("\\fi-360\\li300") << 300 << 360 << 0;
    QTest::newRow("too little") << QByteArray("\\fi-360\\ri150") << 0 << 360 << 150;
}

void ParagraphPlaceTest::anItemThatRunsToTheLeftHangsOnTheRight() {
    QFETCH(QByteArray, indents);
    QTextDocument document;
    const QByteArray shape = "\\rtlpar" + indents + "\\qr";
    readRtf(fileOf("\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta.}}" + shape +
                   " a\\par"),
            document);
    QTextBlockFormat item = document.firstBlock().blockFormat();
    const auto twips = [](double pixels) { return int(std::lround(pixels * TwipsPerPixel)); };
    QTEST(twips(item.leftMargin()), "left");
    QTEST(twips(item.rightMargin()), "right");
    QCOMPARE(item.alignment(), Qt::AlignRight | Qt::AlignAbsolute);
    QCOMPARE(labelOffset(item), -360);
    standAcrossMargin(item);
    QTEST(twips(item.leftMargin()), "left");
    QTEST(twips(item.rightMargin()), "onPaper");
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains(shape), written);
}

void ParagraphPlaceTest::aLabelLongerThanItsRoomPushesTheTextOn() {
    QCOMPARE(apart(capitals(listed("\\levelstartat999999", "\\fi-360\\li720 A\\par B\\par")),
                   (QList<int>{1440})),
             QString());
    QCOMPARE(apart(capitals(listed("\\levelstartat8", "\\fi-360\\li720 A\\par B\\par"), 1),
                   (QList<int>{720})),
             QString());
}

void ParagraphPlaceTest::whatAListSaysOfItsLabelsIsWrittenAgain_data() {
    QTest::addColumn<QByteArray>("level");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* name, const char* level) {
        QTest::newRow(name) << QByteArray(level) << QByteArray(level);
    };
    row("usual", "\\levelnfc0");
    row("blank", "\\levelfollow1");
    row("right side, nothing", "\\leveljc2\\levelfollow2");
    row("middle", "\\leveljc1");
    row("stop", "\\jclisttab\\tx1000");
    row("out of range", "\\leveljc77\\levelfollow-3\\tx-5");
}

void ParagraphPlaceTest::whatAListSaysOfItsLabelsIsWrittenAgain() {
    QFETCH(QByteArray, level);
    QFETCH(QByteArray, written);
    const QByteArray first = rewritten(listed(level, "\\fi-360\\li720 a\\par b\\par"));
    QVERIFY2(first.contains(written), first.constData());
    QVERIFY2(first.contains("\\pard{\\listtext 1.\\tab}\\ls1\\ilvl0"), first.constData());
    QTextDocument document;
    readRtf(first, document);
    QCOMPARE(writeRtf(document), first);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ParagraphPlaceTest)
#include "paragraph_place_test.moc"
