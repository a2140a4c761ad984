// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "kept_file.h"
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
using orvalis::test::changedAndSaved;
using orvalis::test::file;

namespace {

const QByteArray Lists =
    "{\\*\\listtable{\\list\\listtemplateid7{\\listlevel\\levelnfc0\\levelstartat1"
    "{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'01;}\\fi-360\\li720}"
    "{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'04\\'00.\\'01.;}"
    "{\\levelnumbers\\'01\\'03;}\\fi-360\\li1080}{\\listname ;}\\listid77}"
    "{\\list\\listtemplateid8{\\listlevel\\levelnfc23{\\leveltext\\'01\\u9702 ?;}"
    "{\\levelnumbers;}\\f2\\cf1}\\listid88}}"
    "{\\*\\listoverridetable{\\listoverride\\listid77\\listoverridecount0\\ls3}"
    "{\\listoverride\\listid88\\listoverridecount0\\ls4}}";

} // namespace

/// A file that is opened, changed and saved says what it said, in the way in which it said it:
/// other programs tell what is left out from what is said by its usual value.
class SayingTest : public QObject {
    Q_OBJECT
private slots:
    void whatIsSaidStays_data();
    void whatIsSaidStays();
    void wordsOfASideSayTheSameOfAllTextWhereNoSideIsNamed_data();
    void wordsOfASideSayTheSameOfAllTextWhereNoSideIsNamed();
    void aFileWithoutAWriterNamesNone();
    void textShowsInTheSameFontWhereNoneIsNamed();
    void boldThatIsSetWhereNothingWasSaidIsSaid();
    void aFieldGoesWithItsText();
    void fieldsSideBySideStayApart();
    void fieldsInFieldsAreBounded();
    void aNoteStaysOneWhereItsTextIsParted_data();
    void aNoteStaysOneWhereItsTextIsParted();
    void aListGoesWithItsLastItem();
    void listsOfTwoFilesStayApart();
    void bulletsThatTheWindowMakesStandBesideThoseOfTheTables();
    void aLabelInTextAloneIsShownAndStaysText();
    void aListThatBeginsAtNothingGoesOn();
    void aLabelThatItsTextDoesNotTellIsToldByTheTables_data();
    void aLabelThatItsTextDoesNotTellIsToldByTheTables();
    void anItemThatItsTextDoesNotTellTakesItsListIntoTheTables();
    void textThatIsRaisedWhereNothingWasSaidEndsTheSameAgain();
};

void SayingTest::whatIsSaidStays_data() {
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& kept) {
        QTest::newRow(name) << file(body) << kept;
    };
    const QByteArray styles = "{\\stylesheet{\\s1\\b\\fs40 a;}}";
    // What styles tell
    row("nothing", styles + "\\pard\\plain\\s1 word\\par", "\\pard\\s1 deed\\par");
    row("not bold", styles + "\\pard\\plain\\s1\\b0 word\\par", "\\pard\\s1\\b0 deed\\par");
    row("the usual size", styles + "\\pard\\plain\\s1\\fs24 word\\par",
        "\\pard\\s1\\fs24 deed\\par");
    row("the font of text that names none", styles + "\\pard\\plain\\s1\\f0 word\\par",
        "\\pard\\s1\\f0 deed\\par");
    row("every part of a look",
        styles + "\\pard\\s1\\cf0\\highlight0\\ul0\\i0\\strike0\\v0\\caps0"
                 "\\expndtw0\\up0\\nosupersub word\\par",
        "\\cf0\\highlight0\\ulnone\\i0\\strike0\\v0\\caps0\\expnd0\\expndtw0\\up0\\nosupersub "
        "deed");
    row("back to nothing", styles + "\\pard\\plain\\s1{\\i\\fs30 b }word\\par",
        "\\i\\fs30 b \\plain deed\\par");
    row("back from raised text", styles + "\\pard\\plain\\s1{\\super b }word\\par",
        "\\super b \\nosupersub\\plain deed\\par");
    row("indents and spacing", styles + "\\pard\\s1\\ql\\fi0\\li0\\ri0\\sb0\\sa0\\ltrpar word\\par",
        "\\pard\\s1\\ltrpar\\fi0\\li0\\ri0\\sb0\\sa0\\ql deed\\par");
    row("nothing of indents", styles + "\\pard\\s1\\li720 word\\par", "\\pard\\s1\\li720 deed");
    // Fields
    row("field", "on {\\field{\\*\\fldinst DATE \\\\@ \"yyyy\"}{\\fldrslt{word}}}.\\par",
        "on {\\field{\\*\\fldinst DATE \\\\@ \"yyyy\"}{\\fldrslt deed}}.\\par");
    row("field without a result", "word{\\field{\\*\\fldinst{\\b PAGE}}{\\fldrslt}} on\\par",
        "deed{\\field{\\*\\fldinst{\\b PAGE}}{\\fldrslt}} on\\par");
    row("field in a link",
        "{\\field{\\*\\fldinst{HYPERLINK \"http://a.b\"}}{\\fldrslt word "
        "{\\field{\\*\\fldinst PAGEREF x}{\\fldrslt 8}}}} on\\par",
        "deed {\\field{\\*\\fldinst PAGEREF x}{\\fldrslt 8}}}}");
    row("plain text in a field", "{\\field{\\*\\fldinst X}{\\fldrslt{a\\plain  word}}}\\par",
        "\\f0\\fs24{\\field{\\*\\fldinst X}{\\fldrslt a deed}}");
    row("field whose name has a code",
        "{\\field{\\*\\fldinst HYPER\\'01LINK x}{\\fldrslt word}}\\par",
        "\\f0\\fs24{\\field{\\*\\fldinst HYPER\\'01LINK x}{\\fldrslt deed}}");
    row("field whose name has a code as it is",
        "{\\field{\\*\\fldinst HYPERLINK\x07 x}{\\fldrslt word}}\\par", "deed");
    row("paragraphs in a field", "{\\field{\\*\\fldinst TOC}{\\fldrslt a\\par word}}\\par",
        "a\\par\r\ndeed\\par");
    // Lists
    row("outline", Lists + "\\pard\\ls3 word\\par\\pard\\ls3\\ilvl1 b\\par",
        "\\pard{\\listtext 1.\\tab}\\ls1\\ilvl0\\f0\\fs24 deed\\par\r\n"
        "\\pard{\\listtext 1.1.\\tab}\\ls1\\ilvl1 b\\par");
    row("table of the outline", Lists + "\\pard\\ls3 word\\par",
        "{\\leveltext\\'04\\'00.\\'01.;}{\\levelnumbers\\'01\\'03;}\\fi-360\\li1080}{\\listname;}"
        "\\listid77}}\r\n{\\*\\listoverridetable"
        "{\\listoverride\\listoverridecount0\\listid77\\ls1}}");
    row("bullet of its own", Lists + "\\pard\\ls4 word\\par",
        "{\\leveltext\\'01\\u9702?;}{\\levelnumbers;}\\f1\\cf1}\\listid88}");
    row("tables and \\pn", Lists + "\\pard{\\*\\pn\\pnlvlbody\\pndec}\\ls3 word\\par",
        "\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart1\\pndec{\\pntxta.}}"
        "\\ls1\\ilvl0");
    row("\\pn alone", "\\pard{\\*\\pn\\pnlvlbody\\pndec{\\pntxta.}}word\\par",
        "{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart1\\pndec{\\pntxta.}}\\f0\\fs24 deed\\par");
    row("label in text alone", "\\pard{\\pntext 4.\\tab}\\fi-360\\li720 word\\par",
        "\\pard{\\pntext 4.\\tab}\\fi-360\\li720\\f0\\fs24 deed\\par");
    row("\\pn in a group that ends ahead of the paragraph",
        "\\pard{{\\*\\pn\\pnlvlbody\\pndec\\pnstart3{\\pntxta.}}{\\pntext 3.\\tab}word}\\par",
        "{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart3\\pndec{\\pntxta.}}\\f0\\fs24 deed");
    row("list of the number 0",
        "{\\*\\listtable{\\list{\\listlevel\\levelnfc0{\\leveltext\\'02\\'00.;}{\\levelnumbers\\'"
        "01;}}"
        "\\listid5}}{\\*\\listoverridetable{\\listoverride\\listid5\\ls0}}\\pard\\ls0 word\\par",
        "\\pard{\\listtext 1.\\tab}\\ls1\\ilvl0\\f0\\fs24 deed\\par");
    row("no list by the number 0", Lists + "\\pard\\ls3\\ls0 word\\par",
        "\\pard\\f0\\fs24 deed\\par");
    row("room for a number alone", "\\pard{\\*\\pn\\pnlvlcont\\pndec}word\\par",
        "\\pard\\f0\\fs24 deed\\par");
    row("list in a cell",
        Lists + "\\trowd\\cellx900\\cellx1800\\pard\\intbl\\ls3 word\\cell\\ls4 b\\cell\\row",
        "\\pard\\intbl\\ls1\\ilvl0\\f0\\fs24 deed\\cell\r\n\\pard\\intbl\\ls2\\ilvl0 b\\cell\\row");
    row("indent in a cell, beside lists that nothing is of",
        Lists + "\\trowd\\cellx900\\cellx1800\\pard\\intbl\\li0 word\\cell b\\cell\\row",
        "\\pard\\intbl\\f0\\fs24 deed\\cell");
    row("label behind the last cell",
        "\\trowd\\cellx900\\pard\\intbl word\\cell{\\pntext\\'B7\\tab}\\row",
        "\\pard\\intbl\\f0\\fs24 deed\\cell\\row");
    row("label in the look of the mark", Lists + "\\pard\\ls3{\\i word}\\b\\fs30\\par",
        "\\i\\f0\\fs24 deed{\\plain\\b\\f0\\fs30\\par}\r\n");
    row("space that is told behind the text", "\\pard\\sa60 word\\sa180\\par\\pard\\sa180 b\\par",
        "\\pard\\sa60\\f0\\fs24 deed\\sa180\\par\r\n\\pard\\sa180 b\\par");
    row("space that is told ahead of a break",
        "\\pard\\sa60 word\\sa180\\page b\\sa90\\sect c\\par",
        "\\sa60\\f0\\fs24 deed\\sa180\\page\r\n\\pard\\sa180 b\\sa90\\sect");
    row("space that cells tell one behind the other",
        "\\trowd\\cellx900\\cellx1800\\pard\\intbl\\sa60 word\\cell\\pard\\intbl\\sa180 "
        "b\\cell\\row",
        "\\pard\\intbl\\sa60\\f0\\fs24 deed\\cell\r\n\\pard\\intbl\\sa180 b\\cell\\row");
    // Scripts
    row("right to left", "{\\ltrch\\fcs0\\af1\\afs20\\ab\\rtlch\\fcs1\\f2\\fs40 word}\\par",
        "\\pard\\ltrch\\af1\\afs20\\ab\\rtlch\\f2\\fs40 deed\\par");
    row("directions that are not told apart", "\\f1\\rtlch word\\f2\\fs40\\ltrch  b\\rtlch  c\\par",
        "\\pard\\rtlch\\f1\\fs24 deed\\plain\\f2\\fs40  b\\rtlch  c\\par");
    row("right to left within left to right",
        "\\rtlch\\af1\\afs28\\ab\\ltrch\\f2\\fs20{\\ltrch\\afs30\\rtlch\\i word}\\par",
        "\\pard\\ltrch\\af1\\afs30\\rtlch\\b\\i\\f2\\fs28 deed");
    row("left to right", "{\\rtlch\\fcs1\\af1\\afs20\\ltrch\\fcs0\\f2\\fs40 word}\\par",
        "\\pard\\rtlch\\af1\\afs20\\ltrch\\f2\\fs40 deed\\par");
    row("nothing but left to right", "{\\ltrch word}\\par", "\\pard\\f0\\fs24 deed\\par");
    row("Latin", "{\\hich\\af1\\dbch\\af2\\loch\\f0 word}\\par",
        "\\pard\\hich\\af1\\dbch\\af2\\loch\\f0\\fs24 deed\\par");
    row("of the east", "{\\loch\\af1\\hich\\af1\\dbch\\f2 word}\\par",
        "\\pard\\loch\\af1\\hich\\af1\\dbch\\f2\\fs24 deed\\par");
    row("of the east, in the font ahead", "\\f2 a\\dbch\\f2  word\\par",
        "\\pard\\f1\\fs24 a\\dbch\\f1  deed\\par");
    row("a font that is named ahead of the script", "{\\loch\\f2\\dbch\\af1 word}\\par",
        "\\pard\\dbch\\af1\\loch\\f2\\fs24 deed\\par");
    row("the upper half is Latin", "{\\dbch\\af2\\hich\\af1 word}\\par",
        "\\pard\\hich\\af1\\dbch\\af2\\loch\\f0\\fs24 deed\\par");
    // Marks
    row("number of a note that tells all of its look", "word{\\plain\\super\\chftn} on\\par",
        "deed{\\plain\\super\\f0\\fs24\\chftn} on");
    row("number of a note", "word{\\i\\super\\chftn}{\\footnote x} on\\par",
        "deed{\\plain\\i\\super\\f0\\fs24\\chftn}{\\footnote x} on");
    row("drawing", "word{\\*\\do\\dobxpage\\dptxbx{\\dptxbxtext a}\\dpx9} on\\par",
        "deed{\\*\\do\\dobxpage\\dptxbx{\\dptxbxtext a}\\dpx9} on");
    row("section behind a table",
        "\\trowd\\cellx900\\pard\\intbl word\\cell\\row\\pard\\sect\\sectd\\sbknone b\\par",
        "\\cell\\row\r\n\\pard\\sect\\sectd\\sbknone\r\n");
    // Fonts
    QTest::newRow("no default font")
        << QByteArray("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Times;}}\\f1 a\\plain  word\\par}")
        << QByteArray("{\\rtf1\\ansi\\ansicpg1252\\deflang1033{\\fonttbl"
                      "{\\f1\\fnil\\fcharset0 Times;}}\r\n"
                      "\\viewkind4\\uc1\\pard\\f1\\fs24 a\\plain  deed\\par");
    QTest::newRow("no font at all")
        << QByteArray("{\\rtf1 word\\par}")
        << QByteArray("{\\fonttbl}\r\n\\viewkind4\\uc1\\pard\\fs24 deed");
    QTest::newRow("a default font that is missing")
        << QByteArray("{\\rtf1\\deff5{\\fonttbl{\\f1 Arial;}}a{\\f1 word}\\par}")
        << QByteArray("\\deff2\\deflang1033{\\fonttbl{\\f1\\fnil\\fcharset0 Arial;}}");
}

void SayingTest::whatIsSaidStays() {
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, kept);
    const QByteArray written = changedAndSaved(given);
    QVERIFY2(written.contains(kept), written);
    QCOMPARE(written.count("deed"), 1);
}

void SayingTest::wordsOfASideSayTheSameOfAllTextWhereNoSideIsNamed_data() {
    QTest::addColumn<QByteArray>("ofASide");
    QTest::addColumn<QByteArray>("plain");
    const auto row = [](const QByteArray& ofASide, const QByteArray& plain) {
        QTest::newRow(ofASide.constData()) << ofASide << plain;
    };
    row("\\af2", "\\f2");
    row("\\f1\\af2", "\\f2");
    row("\\af99", "\\f99");
    row("\\af", "\\f");
    row("\\afs40", "\\fs40");
    row("\\afs0", "\\fs0");
    row("\\afs999999", "\\fs999999");
    row("\\afs", "\\fs");
    row("\\ab\\ai", "\\b\\i");
    row("\\b\\i\\ab0\\ai0", "\\b0\\i0");
    row("\\af2\\rtlch a\\ltrch ", "\\f2\\rtlch a\\ltrch ");
}

void SayingTest::wordsOfASideSayTheSameOfAllTextWhereNoSideIsNamed() {
    QFETCH(QByteArray, ofASide);
    QFETCH(QByteArray, plain);
    const auto saved = [](const QByteArray& words) {
        return changedAndSaved(file("{" + words + " word}\\par"));
    };
    QCOMPARE(saved(ofASide), saved(plain));
}

void SayingTest::aFileWithoutAWriterNamesNone() {
    QVERIFY(!changedAndSaved(file("word\\par")).contains("generator"));
    const QByteArray field = "{\\field{\\fldrslt a}{\\*\\fldinst{\\generator A;}}}";
    QVERIFY(!changedAndSaved(file("word" + field + "\\par")).contains("Orvalis"));
    QVERIFY(changedAndSaved(file("{\\*\\generator A;}word\\par"))
                .contains("{\\*\\generator Orvalis;}"));
    QVERIFY(writeRtf(QTextDocument()).contains("{\\*\\generator Orvalis;}"));
}

void SayingTest::textShowsInTheSameFontWhereNoneIsNamed() {
    QTextDocument document;
    const QString shown = document.defaultFont().family();
    QVERIFY(readRtf("{\\rtf1{\\fonttbl{\\f3 Times;}{\\f0 Arial;}}\\f3 a\\plain b\\par}", document)
                .ok());
    const auto familyOfB = [](const QTextDocument& in) {
        return in.find(QStringLiteral("b")).charFormat().fontFamilies().toStringList();
    };
    QCOMPARE(familyOfB(document), QStringList{shown});
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(familyOfB(again), QStringList{shown});
}

void SayingTest::boldThatIsSetWhereNothingWasSaidIsSaid() {
    QTextDocument document;
    QVERIFY(readRtf(file("{\\stylesheet{\\s1 a;}}\\pard\\s1 a word\\par"), document).ok());
    QTextCharFormat look;
    look.setFontWeight(QFont::Bold);
    look.setFontPointSize(30);
    look.setFontFamilies({QStringLiteral("Verdana")});
    document.find(QStringLiteral("word")).mergeCharFormat(look);
    QVERIFY2(writeRtf(document).contains("a \\b\\f1\\fs60 word"), writeRtf(document));
}

void SayingTest::aFieldGoesWithItsText() {
    QTextDocument document;
    QVERIFY(readRtf(file("a {\\field{\\*\\fldinst DATE}{\\fldrslt word}} b\\par"), document).ok());
    document.find(QStringLiteral("word")).removeSelectedText();
    const QByteArray written = writeRtf(document);
    QVERIFY2(!written.contains("DATE") && written.contains("a  b"), written);
}

void SayingTest::fieldsSideBySideStayApart() {
    const QByteArray field = "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}";
    const QByteArray written = changedAndSaved(file("word " + field + field + "\\par"));
    QVERIFY2(written.contains(field + field), written);
}

void SayingTest::fieldsInFieldsAreBounded() {
    constexpr int Depth = 1500;
    QByteArray body;
    for (int i = 0; i < Depth; ++i)
        body += "{\\field{\\*\\fldinst X}{\\fldrslt ";
    body += "word" + QByteArray(2 * Depth, '}') + "\\par";
    const QByteArray written = changedAndSaved(file(body));
    QCOMPARE(written.count("fldinst"), 1);
    QVERIFY(written.contains("deed"));
}

void SayingTest::aNoteStaysOneWhereItsTextIsParted_data() {
    QTest::addColumn<QString>("between");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("text of another look")
        << QStringLiteral("X") << QByteArray("more \\b X\\b0  on{\\footnote x}. on{\\footnote x}");
    QTest::newRow("paragraph") << QStringLiteral("\n")
                               << QByteArray("more {\\footnote x}\\par\r\n on. on{\\footnote x}");
}

void SayingTest::aNoteStaysOneWhereItsTextIsParted() {
    QFETCH(QString, between);
    QFETCH(QByteArray, written);
    QTextDocument document;
    QVERIFY(readRtf(file("word{\\footnote x}. on{\\footnote x}\\par"), document).ok());
    QTextCursor cursor = document.find(QStringLiteral("d"));
    const QTextCharFormat anchored = cursor.charFormat();
    cursor.insertText(QStringLiteral("d more  on"), anchored);
    cursor = document.find(QStringLiteral("more "));
    cursor.setPosition(cursor.selectionEnd());
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    bold.setFontFamilies(anchored.fontFamilies().toStringList());
    bold.setFontPointSize(anchored.fontPointSize());
    cursor.insertText(between, bold);
    QVERIFY2(writeRtf(document).contains(written), writeRtf(document));
}

void SayingTest::aListGoesWithItsLastItem() {
    QTextDocument document;
    QVERIFY(readRtf(file(Lists + "\\pard\\ls3 word\\par\\pard\\ls4 b\\par"), document).ok());
    QTextCursor cursor(document.firstBlock());
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    const QByteArray written = writeRtf(document);
    QVERIFY2(!written.contains("\\listid77") && written.contains("\\listid88"), written);
}

void SayingTest::listsOfTwoFilesStayApart() {
    QTextDocument document;
    QVERIFY(readRtf(file(Lists + "\\pard\\ls3 a\\par"), document).ok());
    QByteArray other = Lists;
    other.replace("\\levelstartat1", "\\levelstartat5");
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.insertBlock();
    QVERIFY(insertRtf(file(other + "\\pard\\ls3 b\\par"), end).ok());
    const QByteArray written = writeRtf(document);
    QVERIFY2(
        written.contains("\\listid77\\ls1}{\\listoverride\\listoverridecount0\\listid78\\ls2}"),
        written);
    QVERIFY(written.contains("\\levelstartat1") && written.contains("\\levelstartat5"));
}

void SayingTest::bulletsThatTheWindowMakesStandBesideThoseOfTheTables() {
    QTextDocument document;
    QVERIFY(readRtf(file(Lists + "\\pard\\ls4 a\\par\\pard b\\par"), document).ok());
    QTextCursor(document.lastBlock()).createList(QTextListFormat::ListDisc);
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("\\listid88}{\\list\\listtemplateid2\\listsimple"), written);
    QVERIFY(written.contains("{\\*\\pn\\pnlvlblt"));
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(writeRtf(again), written);
}

void SayingTest::aLabelInTextAloneIsShownAndStaysText() {
    QTextDocument document;
    QVERIFY(readRtf(file("\\pard{\\pntext 4.\\tab}a\\par{\\pntext 5.\\tab}b\\par"), document).ok());
    QCOMPARE(shownLabel(document.firstBlock()), QStringLiteral("4."));
    QCOMPARE(shownLabel(document.lastBlock()), QStringLiteral("5."));
    const QByteArray written = writeRtf(document);
    QVERIFY2(!written.contains("\\pn\\") && !written.contains("\\ls"), written);
    QCOMPARE(written.count("{\\pntext"), 2);
}

void SayingTest::aListThatBeginsAtNothingGoesOn() {
    QTextDocument document;
    readRtf(file("\\pard{\\pntext 0.\\tab}a\\par{\\pntext 1.\\tab}b\\par"), document);
    QVERIFY(document.firstBlock().textList() != nullptr);
    QCOMPARE(document.lastBlock().textList(), document.firstBlock().textList());
    QCOMPARE(shownLabel(document.lastBlock()), QStringLiteral("1."));
}

void SayingTest::aLabelThatItsTextDoesNotTellIsToldByTheTables_data() {
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<bool>("byText");
    QTest::newRow("a number") << QByteArray("4.") << true;
    QTest::newRow("words ahead") << QByteArray("Step 4:") << true;
    QTest::newRow("a code and a blank ahead") << QByteArray("\\'01 4.") << false;
    QTest::newRow("a blank and a code behind") << QByteArray("4. \\'01") << false;
    QTest::newRow("a code within") << QByteArray("(\\'014)") << true;
}

void SayingTest::aLabelThatItsTextDoesNotTellIsToldByTheTables() {
    QFETCH(QByteArray, label);
    QFETCH(bool, byText);
    const QByteArray written = changedAndSaved(file("\\pard{\\pntext " + label + "}word\\par"));
    QVERIFY2(written.contains("deed"), written);
    QCOMPARE(!written.contains("\\ls1"), byText);
}

void SayingTest::anItemThatItsTextDoesNotTellTakesItsListIntoTheTables() {
    QTextDocument document;
    readRtf(file("\\pard{\\pntext h.\\tab}a"), document);
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.insertBlock();
    end.insertText(QStringLiteral("b"));
    QCOMPARE(shownLabel(document.lastBlock()), QStringLiteral("i."));
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(shownLabel(again.firstBlock()), QStringLiteral("h."));
    QCOMPARE(shownLabel(again.lastBlock()), QStringLiteral("i."));
    QCOMPARE(writeRtf(again), written);
}

void SayingTest::textThatIsRaisedWhereNothingWasSaidEndsTheSameAgain() {
    QTextDocument document;
    readRtf(file("{\\stylesheet{\\s1 a;}}\\pard\\plain\\s1 word\\par next\\par"), document);
    QTextCursor word = document.find(QStringLiteral("word"));
    QTextCharFormat raised;
    raised.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    word.mergeCharFormat(raised);
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("\\super word"), written);
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(writeRtf(again), written);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, SayingTest)
#include "saying_test.moc"
