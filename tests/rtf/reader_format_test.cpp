// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "recording_sink.h"
#include "rtf/reader.h"
#include "support/test_main.h"

#include <QGuiApplication>

#include <functional>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::RecordingSink;

using CharSetter = std::function<void(CharFormat&)>;
using ParagraphSetter = std::function<void(ParagraphFormat&)>;

namespace {

RecordingSink reading(const QByteArray& body) {
    RecordingSink sink;
    readRtf("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}{\\f7\\froman Times;}}"
            "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green128\\blue0;}" +
                body + "}",
            sink);
    return sink;
}

} // namespace

class ReaderFormatTest : public QObject {
    Q_OBJECT
private slots:
    void everyCharacterWordChangesWhatItNames_data();
    void everyCharacterWordChangesWhatItNames();
    void everyParagraphWordChangesWhatItNames_data();
    void everyParagraphWordChangesWhatItNames();
    void fontsAreFoundByTheirNumbers_data();
    void fontsAreFoundByTheirNumbers();
    void anEntryWithoutPartsIsTheAutomaticColour();
    void aTableWithoutAutomaticEntryBeginsWithAColour();
    void theLastColourMayLackItsEnd();
    void whatHoldsAtTheMarkShapesTheWholeParagraph();
    void paragraphsInheritUntilPard();
    void plainResetsCharactersAndPardParagraphs();
    void aGroupGivesTheParagraphsShapeBack();
    void atMostThirtyTwoTabStopsAreKept();
    void theLastParagraphKeepsItsShapeWithoutAMark();
    void theDefaultTabIsTold();
    void listsOfAllKindsAreKnown_data();
    void listsOfAllKindsAreKnown();
    void aListGoesOnUntilPard();
    void aListOfTheTablesGoesOnUntilPard();
    void anOverrideChangesTheListForItself();
    void overridesOfOneListAreThatList();
};

void ReaderFormatTest::everyCharacterWordChangesWhatItNames_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<CharSetter>("change");
    const auto row = [](const char* words, const CharSetter& change) {
        QTest::newRow(words) << QByteArray(words) << change;
    };
    row(
        "\\b", [](CharFormat& f) { f.bold = true; });
    row("\\b1", [](CharFormat& f) { f.bold = true; });
    row(
        "\\b\\b0", [](CharFormat&) {});
    row("\\i", [](CharFormat& f) { f.italic = true; });
    row(
        "\\i\\i0", [](CharFormat&) {});
    row("\\strike", [](CharFormat& f) { f.strike = true; });
    row(
        "\\strike\\strike0", [](CharFormat&) {});
    row(
        "\\striked1", [](CharFormat& f) { f.strike = f.doubleStrike = true; });
    row(
        "\\v", [](CharFormat& f) { f.hidden = true; });
    row(
        "\\ul", [](CharFormat& f) { f.underline = Underline::Single; });
    row(
        "\\uld", [](CharFormat& f) { f.underline = Underline::Dotted; });
    row(
        "\\uldb", [](CharFormat& f) { f.underline = Underline::Double; });
    row(
        "\\ulw", [](CharFormat& f) { f.underline = Underline::Words; });
    row(
        "\\ulwave", [](CharFormat& f) { f.underline = Underline::Wave; });
    row(
        "\\uldash", [](CharFormat& f) { f.underline = Underline::Dash; });
    row(
        "\\uldashd", [](CharFormat& f) { f.underline = Underline::DashDot; });
    row("\\ulth", [](CharFormat& f) { f.underline = Underline::Thick; });
    row("\\ul\\ulnone", [](CharFormat&) {});
    row(
        "\\ul\\ul0", [](CharFormat&) {});
    row(
        "\\super", [](CharFormat& f) { f.script = Script::Super; });
    row("\\sub", [](CharFormat& f) { f.script = Script::Sub; });
    row(
        "\\super\\nosupersub", [](CharFormat&) {});
    row(
        "\\up8", [](CharFormat& f) { f.raise = 8; });
    row(
        "\\dn8", [](CharFormat& f) { f.raise = -8; });
    row(
        "\\up", [](CharFormat& f) { f.raise = 6; });
    row(
        "\\caps", [](CharFormat& f) { f.capitals = Capitals::All; });
    row("\\scaps", [](CharFormat& f) { f.capitals = Capitals::Small; });
    row(
        "\\scaps\\scaps0", [](CharFormat&) {});
    row(
        "\\scaps\\caps0", [](CharFormat& f) { f.capitals = Capitals::Small; });
    row("\\fs36", [](CharFormat& f) { f.halfPoints = 36; });
    // Of neither direction where none is named.
    row(
        "\\afs36", [](CharFormat& f) { f.halfPoints = 36; });
    row("\\ab", [](CharFormat& f) { f.bold = true; });
    row(
        "\\ab\\b0", [](CharFormat&) {});
    row("\\ai", [](CharFormat& f) { f.italic = true; });
    row("\\fs0", [](CharFormat&) {});
    row(
        "\\fs-4", [](CharFormat&) {});
    row(
        "\\fs99999999", [](CharFormat& f) { f.halfPoints = 3276; });
    row(
        "\\cf1", [](CharFormat& f) { f.color = 0xffff0000; });
    row("\\cf2", [](CharFormat& f) { f.color = 0xff008000; });
    row("\\cf1\\cf0", [](CharFormat&) {});
    row("\\cf3", [](CharFormat&) {});
    row("\\cf-1", [](CharFormat&) {});
    row(
        "\\cf2147483647", [](CharFormat&) {});
    row("\\highlight2", [](CharFormat& f) { f.highlight = 0xff008000; });
    row("\\cf2\\highlight1", [](CharFormat& f) {
        f.color = 0xff008000;
        f.highlight = 0xffff0000;
    });
    row("\\b\\i\\ul\\plain", [](CharFormat&) {});
}

void ReaderFormatTest::everyCharacterWordChangesWhatItNames() {
    QFETCH(QByteArray, words);
    QFETCH(CharSetter, change);
    CharFormat expected = reading(" x").runs.first().format;
    change(expected);
    const RecordingSink sink = reading(words + " x");
    QCOMPARE(sink.runs.size(), 1);
    QCOMPARE(sink.runs.first().text, QStringLiteral("x"));
    QVERIFY(sink.runs.first().format == expected);
}

void ReaderFormatTest::everyParagraphWordChangesWhatItNames_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<ParagraphSetter>("change");
    const auto row = [](const char* words, const ParagraphSetter& change) {
        QTest::newRow(words) << QByteArray(words) << change;
    };
    row(
        "\\ql", [](ParagraphFormat& p) { p.leftIsSaid = true; });
    row(
        "\\qr", [](ParagraphFormat& p) { p.alignment = Alignment::Right; });
    row(
        "\\qc", [](ParagraphFormat& p) { p.alignment = Alignment::Center; });
    row(
        "\\qj", [](ParagraphFormat& p) { p.alignment = Alignment::Justify; });
    row(
        "\\li720", [](ParagraphFormat& p) { p.left = 720; });
    row(
        "\\fi-360", [](ParagraphFormat& p) { p.first = -360; });
    row(
        "\\ri100", [](ParagraphFormat& p) { p.right = 100; });
    row(
        "\\sb120", [](ParagraphFormat& p) { p.before = 120; });
    row("\\sa200", [](ParagraphFormat& p) { p.after = 200; });
    row(
        "\\sb-5", [](ParagraphFormat&) {});
    row("\\li2147483647", [](ParagraphFormat& p) { p.left = 100000; });
    row(
        "\\sl276\\slmult1",
        [](ParagraphFormat& p) {
            p.lineSpacing = 276;
            p.lineMultiple = true;
        });
    row(
        "\\sl-300\\slmult0", [](ParagraphFormat& p) { p.lineSpacing = -300; });
    row(
        "\\rtlpar", [](ParagraphFormat& p) { p.rightToLeft = true; });
    row(
        "\\rtlpar\\ltrpar", [](ParagraphFormat& p) { p.leftToRight = true; });
    row(
        "\\pagebb", [](ParagraphFormat& p) { p.pageBreakBefore = true; });
    row("\\tx720\\tqr\\tx1440\\tqc\\tx2000\\tqdec\\tx3000\\tx3500", [](ParagraphFormat& p) {
        p.tabs = {{720, QTextOption::LeftTab},
                  {1440, QTextOption::RightTab},
                  {2000, QTextOption::CenterTab},
                  {3000, QTextOption::DelimiterTab},
                  {3500, QTextOption::LeftTab}};
    });
    row("\\qc\\li99\\tx9\\pard", [](ParagraphFormat&) {});
}

void ReaderFormatTest::everyParagraphWordChangesWhatItNames() {
    QFETCH(QByteArray, words);
    QFETCH(ParagraphSetter, change);
    ParagraphFormat expected;
    change(expected);
    const RecordingSink sink = reading("\\pard" + words + " x\\par");
    QVERIFY(sink.paragraphs.first().format == expected);
    QVERIFY(sink.paragraphs.first().ended);
}

void ReaderFormatTest::fontsAreFoundByTheirNumbers_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QString>("family");
    const auto row = [](const char* name, const QByteArray& rtf, const QString& family) {
        QTest::newRow(name) << rtf << family;
    };
    row("braced", "\\deff0{\\fonttbl{\\f0\\fnil Arial;}}", QStringLiteral("Arial"));
    row("unbraced", "\\deff1{\\fonttbl\\f0\\fswiss Helvetica;\\f1\\fnil Times;}",
        QStringLiteral("Times"));
    row("default behind a gap", "\\deff31500{\\fonttbl{\\f31500 Theme;}}", QStringLiteral("Theme"));
    row("unknown number falls to the default", "\\deff0{\\fonttbl{\\f0 Arial;}}\\f9",
        QStringLiteral("Arial"));
    row("negative number", "\\deff0{\\fonttbl{\\f0 Arial;}{\\f-1 Odd;}}\\f-1",
        QStringLiteral("Odd"));
    row("largest number", "\\deff0{\\fonttbl{\\f2147483647 Far;}}\\f2147483647",
        QStringLiteral("Far"));
    row("name in the font's own page",
        "\\deff0{\\fonttbl{\\f0\\fnil\\fcharset134 \\'cb\\'ce\\'cc\\'e5;}}",
        QStringLiteral("\u5b8b\u4f53"));
    row("plain name beside an old suffix",
        "\\deff0{\\fonttbl{\\f0\\fcharset238{\\*\\fname Arial;}Arial CE;}}",
        QStringLiteral("Arial"));
    row("old suffix alone", "\\deff0{\\fonttbl{\\f0\\fcharset204 Times New Roman Cyr;}}",
        QStringLiteral("Times New Roman"));
    row("skipped parts", "\\deff0{\\fonttbl{\\f0{\\*\\panose 0102}Arial{\\*\\falt Other};}}",
        QStringLiteral("Arial"));
    row("none at all", "", QString());
}

void ReaderFormatTest::fontsAreFoundByTheirNumbers() {
    QFETCH(QByteArray, rtf);
    QFETCH(QString, family);
    RecordingSink sink;
    QVERIFY(readRtf("{\\rtf1\\ansi" + rtf + "\\i0 x}", sink).ok());
    QCOMPARE(sink.runs.first().family, family);
    QCOMPARE(sink.whole, QStringLiteral("x"));
}

void ReaderFormatTest::anEntryWithoutPartsIsTheAutomaticColour() {
    RecordingSink sink;
    readRtf("{\\rtf1{\\colortbl;\\red1\\green2\\blue3;;}\\cf0 a\\cf1 b\\cf2 c}", sink);
    QCOMPARE(sink.runs.size(), 3);
    QCOMPARE(sink.runs[0].format.color, AutomaticColor);
    QCOMPARE(sink.runs[1].format.color, qRgb(1, 2, 3));
    QCOMPARE(sink.runs[2].format.color, AutomaticColor);
}

void ReaderFormatTest::aTableWithoutAutomaticEntryBeginsWithAColour() {
    RecordingSink sink;
    readRtf("{\\rtf1{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;}\\cf0 a\\cf1 b}",
            sink);
    QCOMPARE(sink.runs[0].format.color, qRgb(0, 0, 0));
    QCOMPARE(sink.runs[1].format.color, qRgb(255, 0, 0));
}

void ReaderFormatTest::theLastColourMayLackItsEnd() {
    RecordingSink sink;
    readRtf("{\\rtf1{\\colortbl;\\red1\\green2\\blue3;\\red4\\green5\\blue6}\\cf1 a\\cf2 b\\cf3 c}",
            sink);
    QCOMPARE(sink.runs.size(), 3);
    QCOMPARE(sink.runs[0].format.color, qRgb(1, 2, 3));
    QCOMPARE(sink.runs[1].format.color, qRgb(4, 5, 6));
    QCOMPARE(sink.runs[2].format.color, AutomaticColor);
}

void ReaderFormatTest::whatHoldsAtTheMarkShapesTheWholeParagraph() {
    const RecordingSink sink = reading("\\pard with a\\line\\pard\\qc break.\\par");
    QCOMPARE(sink.paragraphs.first().text, QStringLiteral("with a\u2028break."));
    QCOMPARE(sink.paragraphs.first().format.alignment, Alignment::Center);
}

void ReaderFormatTest::paragraphsInheritUntilPard() {
    const RecordingSink sink = reading("\\pard\\qr a\\par b\\par\\pard c\\par");
    QCOMPARE(sink.paragraphs[1].format.alignment, Alignment::Right);
    QCOMPARE(sink.paragraphs[2].format.alignment, Alignment::Left);
}

void ReaderFormatTest::plainResetsCharactersAndPardParagraphs() {
    const RecordingSink sink = reading("\\qc\\b\\f7\\fs40\\plain x\\par");
    const auto& run = sink.runs.first();
    QVERIFY(!run.format.bold);
    QCOMPARE(run.format.halfPoints, 24);
    QCOMPARE(run.family, QStringLiteral("Arial"));
    QCOMPARE(sink.paragraphs.first().format.alignment, Alignment::Center);
}

void ReaderFormatTest::aGroupGivesTheParagraphsShapeBack() {
    const RecordingSink sink = reading("\\qr a\\par{\\qc\\li720 b\\par}c\\par");
    QCOMPARE(sink.paragraphs[1].format.alignment, Alignment::Center);
    QCOMPARE(sink.paragraphs[2].format.alignment, Alignment::Right);
    QCOMPARE(sink.paragraphs[2].format.left, 0);
}

void ReaderFormatTest::atMostThirtyTwoTabStopsAreKept() {
    QByteArray words = "\\pard";
    for (int stop = 1; stop <= 40; ++stop)
        words += "\\tx" + QByteArray::number(100 * stop);
    const RecordingSink sink = reading(words + " x\\par");
    QCOMPARE(sink.paragraphs.first().format.tabs.size(), 32);
    QCOMPARE(sink.paragraphs.first().format.tabs.last().position, 3200);
}

void ReaderFormatTest::theLastParagraphKeepsItsShapeWithoutAMark() {
    const RecordingSink sink = reading("\\pard\\qc x");
    QCOMPARE(sink.paragraphs.size(), 1);
    QVERIFY(!sink.paragraphs.first().ended);
    QCOMPARE(sink.paragraphs.first().format.alignment, Alignment::Center);
}

void ReaderFormatTest::theDefaultTabIsTold() {
    QCOMPARE(reading("\\deftab360 x").defaultTabTwips, 360);
    QCOMPARE(reading(" x").defaultTabTwips, 0);
}

void ReaderFormatTest::listsOfAllKindsAreKnown_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("suffix");
    const auto row = [](const char* name, const QByteArray& rtf, ListKind kind, int start = 1,
                        const QString& prefix = {}, const QString& suffix = {}) {
        QTest::newRow(name) << rtf << int(kind) << start << prefix << suffix;
    };
    row("bullet", "{\\pntext\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}", ListKind::Bullet);
    row("decimal", "{\\*\\pn\\pnlvlbody\\pnstart2\\pndec{\\pntxta.}}", ListKind::Decimal, 2, {},
        QStringLiteral("."));
    row("in parentheses", "{\\*\\pn\\pnlvlbody\\pndec{\\pntxtb(}{\\pntxta)}}", ListKind::Decimal, 1,
        QStringLiteral("("), QStringLiteral(")"));
    row("lower letters", "{\\*\\pn\\pnlvlbody\\pnlcltr}", ListKind::LowerLetter);
    row("upper letters", "{\\*\\pn\\pnlvlbody\\pnucltr}", ListKind::UpperLetter);
    row("lower roman", "{\\*\\pn\\pnlvlbody\\pnlcrm}", ListKind::LowerRoman);
    row("upper roman", "{\\*\\pn\\pnlvlbody\\pnucrm}", ListKind::UpperRoman);
    row("continuation", "{\\*\\pn\\pnlvlcont}", ListKind::None);
    row("number is counted anew, not taken from the label",
        "{\\pntext 3.\\tab}{\\*\\pn\\pnlvlbody\\pnstart2\\pndec}", ListKind::Decimal, 2);
    row("label of a bullet alone", "{\\pntext\\bullet\\tab}", ListKind::Bullet);
    row("label of a number alone", "{\\pntext 4)\\tab}", ListKind::Decimal, 4, {},
        QStringLiteral(")"));
    row("label of a letter alone", "{\\pntext c.\\tab}", ListKind::LowerLetter, 3, {},
        QStringLiteral("."));
    row("label of a roman number alone", "{\\pntext IV.\\tab}", ListKind::UpperRoman, 4, {},
        QStringLiteral("."));
    row("label of a number behind a word", "{\\pntext Chapter 2:\\tab}", ListKind::Decimal, 2,
        QStringLiteral("Chapter "), QStringLiteral(":"));
    row("label of a letter behind words", "{\\listtext Step no. b)\\tab}", ListKind::LowerLetter, 2,
        QStringLiteral("Step no. "), QStringLiteral(")"));
    row("label of a roman number behind a word", "{\\listtext Part IV\\tab}", ListKind::UpperRoman,
        4, QStringLiteral("Part "));
    row("label of two numbers", "{\\listtext 2.1.\\tab}", ListKind::Decimal, 2, {},
        QStringLiteral(".1."));
    row("label of words", "{\\listtext Note well:\\tab}", ListKind::Bullet);
    row("label of a whole paragraph",
        "{\\listtext " + QByteArray("so many words ").repeated(5) + "}", ListKind::None);
    row("label of a letter that is a bullet", "{\\pntext o\\tab}", ListKind::Bullet, 1,
        QStringLiteral("o"));
    const QByteArray tables =
        "{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat5{\\leveltext\\'03(\\'00);}"
        "{\\levelnumbers\\'02;}}{\\listlevel\\levelnfc23{\\leveltext\\'01\\u-3913 ?;}}\\listid77}}"
        "{\\*\\listoverridetable{\\listoverride\\listid77\\listoverridecount0\\ls3}}";
    row("list table, first level", tables + "\\ls3\\ilvl0", ListKind::Decimal, 5,
        QStringLiteral("("), QStringLiteral(")"));
    row("list table, second level", tables + "\\ls3\\ilvl1", ListKind::Bullet);
    row("list table, level beyond the last", tables + "\\ls3\\ilvl8", ListKind::Bullet);
    row("override that is not there", tables + "\\ls4", ListKind::None);
}

void ReaderFormatTest::listsOfAllKindsAreKnown() {
    QFETCH(QByteArray, rtf);
    QFETCH(int, kind);
    QFETCH(int, start);
    QFETCH(QString, prefix);
    QFETCH(QString, suffix);
    const RecordingSink sink = reading("\\pard" + rtf + "\\i0 x\\par");
    const ListLabel label = sink.paragraphs.first().format.list;
    QCOMPARE(int(label.kind), kind);
    QCOMPARE(label.start, start);
    QCOMPARE(label.prefix, prefix);
    QCOMPARE(label.suffix, suffix);
    QCOMPARE(sink.whole, QStringLiteral("x\n"));
}

void ReaderFormatTest::aListGoesOnUntilPard() {
    const RecordingSink sink = reading("\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec}a\\par"
                                       "{\\pntext 2.\\tab}b\\par\\pard c\\par");
    QCOMPARE(sink.paragraphs[1].format.list.kind, ListKind::Decimal);
    QCOMPARE(sink.paragraphs[2].format.list.kind, ListKind::None);
}

void ReaderFormatTest::aListOfTheTablesGoesOnUntilPard() {
    const RecordingSink sink =
        reading("{\\*\\listtable{\\list{\\listlevel\\levelnfc23}{\\listlevel\\levelnfc0}\\listid7}}"
                "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}"
                "\\pard\\ls1\\ilvl1 a\\par b\\par\\pard c\\par\\pard\\ls1 d\\par");
    QCOMPARE(sink.paragraphs[0].format.list.kind, ListKind::Decimal);
    QCOMPARE(sink.paragraphs[1].format.list.kind, ListKind::Decimal);
    QCOMPARE(sink.paragraphs[2].format.list.kind, ListKind::None);
    QCOMPARE(sink.paragraphs[3].format.list.kind, ListKind::Bullet);
}

void ReaderFormatTest::anOverrideChangesTheListForItself() {
    const RecordingSink sink =
        reading("{\\*\\listtable"
                "{\\list{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext\\'02\\'00.;}}"
                "{\\listlevel\\levelnfc4\\levelstartat1{\\leveltext\\'02\\'01.;}}\\listid5}"
                "{\\list{\\listlevel\\levelnfc23}\\listid6}}"
                "{\\*\\listoverridetable"
                "{\\listoverride\\listid5\\listoverridecount2"
                "{\\lfolevel\\listoverridestartat\\levelstartat7}"
                "{\\lfolevel\\listoverrideformat{\\listlevel\\levelnfc1\\levelstartat3"
                "{\\leveltext\\'02\\'01);}}}\\ls1}"
                "{\\listoverride\\listid6\\listoverridecount0\\ls2}"
                "{\\listoverride\\listid5\\listoverridecount0\\ls3}}"
                "\\pard\\ls1 a\\par\\pard\\ls1\\ilvl1 b\\par\\pard\\ls2 c\\par\\pard\\ls3 d\\par");
    const auto label = [&sink](int paragraph) { return sink.paragraphs[paragraph].format.list; };
    QCOMPARE(label(0).kind, ListKind::Decimal);
    QCOMPARE(label(0).start, 7);
    QCOMPARE(label(0).suffix, QStringLiteral("."));
    QCOMPARE(label(1).kind, ListKind::UpperRoman);
    QCOMPARE(label(1).level, 1);
    QCOMPARE(label(1).start, 3);
    QCOMPARE(label(1).suffix, QStringLiteral(")"));
    QCOMPARE(label(2).kind, ListKind::Bullet);
    QCOMPARE(label(3).kind, ListKind::Decimal);
    QCOMPARE(label(3).start, 1);
    QVERIFY(label(0).identity != label(3).identity);
}

void ReaderFormatTest::overridesOfOneListAreThatList() {
    const RecordingSink sink = reading("{\\*\\listtable{\\list{\\listlevel\\levelnfc0}\\listid-7}}"
                                       "{\\*\\listoverridetable{\\listoverride\\listid-7\\ls1}"
                                       "{\\listoverride\\listid-7\\ls2}{\\listoverride\\listid-7"
                                       "{\\lfolevel\\listoverridestartat\\levelstartat1}\\ls3}}"
                                       "\\pard\\ls1 a\\par\\pard\\ls2 b\\par\\pard\\ls3 c\\par");
    QCOMPARE(sink.paragraphs[1].format.list.identity, sink.paragraphs[0].format.list.identity);
    QVERIFY(sink.paragraphs[0].format.list.identity > 0);
    QVERIFY(sink.paragraphs[2].format.list.identity != sink.paragraphs[0].format.list.identity);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, ReaderFormatTest)
#include "reader_format_test.moc"
