// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/format_range.h"
#include "controls/layout_ruler.h"
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Inch = 1440;

QImage sheet(int dotsPerInch, int inches = 1) {
    constexpr double MetersPerInch = 0.0254;
    QImage image(inches * dotsPerInch, inches * dotsPerInch, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dotsPerInch / MetersPerInch));
    image.setDotsPerMeterY(qRound(dotsPerInch / MetersPerInch));
    image.fill(Qt::white);
    return image;
}

/// Where the lines of a box begin on a page of that width: a page that is too low for any line
/// takes one all the same.
QList<int> linesOf(RichTextBox& box, double inches, int dotsPerInch = 96) {
    QImage device = sheet(dotsPerInch);
    RangeFormatter formatter(box);
    const int length = int(box.Text().size());
    QList<int> lines{0};
    while (lines.last() < length && lines.size() < 1000)
        lines << formatter.FormatPage(
            {nullptr, &device, QRectF(0, 0, inches * Inch, 1), lines.last(), -1});
    lines.removeLast();
    return lines;
}

QRect inkOf(RichTextBox& box) {
    constexpr int Inches = 6;
    QImage image = sheet(96, Inches);
    QPainter painter(&image);
    RangeFormatter(box).FormatPage(
        {&painter, &image, QRectF(0, 0, Inches * Inch, Inches * Inch), 0, -1});
    painter.end();
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

} // namespace

class PageLinesTest : public QObject {
    Q_OBJECT
private slots:
    void linesBreakAlikeOnEveryPrinter_data();
    void linesBreakAlikeOnEveryPrinter();
    void anAddressStaysWhole();
    void anAddressLongerThanALineIsBroken();
    void linesBreakAtTheMarksThatPartWords_data();
    void linesBreakAtTheMarksThatPartWords();
    void linesGoOnBeyondTheMarginWhereTheFileSaysSo();
    void linesBeginBeyondTheMarginWhereTheFileSaysSo();
    void behindAnAddressPositionsAreThoseOfTheText();
    void aRangeThatBeginsBehindAnAddressDrawsItsOwnCharacters();
    void aLineHasRoomForAsManyLettersOfAFixedWidthAsThereAreToBe();
    void aLineOfLettersOfOtherWidthsHasNoMoreRoomThanThePage();
    void smallCapitalsAreFourFifthsOfTheirSize();
    void lettersAreAsWideAsTheirFileSays();
    void whatIsSetToTheRightStandsThereWhicheverWayItRuns();
    void whatTheUserSetsToTheRightStandsThereWhicheverWayItRuns();
    void aCharacterWithoutASignHasNoWidth_data();
    void aCharacterWithoutASignHasNoWidth();
    void lettersJoinThatTheirFilePartsWithoutALook_data();
    void lettersJoinThatTheirFilePartsWithoutALook();
    void aJustifiedLineThatABreakEndsIsFullWhereTheFileAsksForIt_data();
    void aJustifiedLineThatABreakEndsIsFullWhereTheFileAsksForIt();
    void aLineThatIsMadeFullBreaksAsItDid_data();
    void aLineThatIsMadeFullBreaksAsItDid();
    void signsShowInWhatStandsForTheirFont_data();
    void signsShowInWhatStandsForTheirFont();
    void textRunsTheWayThatItsFileSays_data();
    void textRunsTheWayThatItsFileSays();
};

void PageLinesTest::linesBreakAlikeOnEveryPrinter_data() {
    QTest::addColumn<int>("dots");
    for (const int dots : {110, 150, 203, 300, 600})
        QTest::addRow("%d dots to the inch", dots) << dots;
}

void PageLinesTest::linesBreakAlikeOnEveryPrinter() {
    QFETCH(int, dots);
    RichTextBox box;
    box.SetText(u"many words of many letters in a paragraph that is wide, "_s.repeated(40));
    box.selectAll();
    box.SetSelFontSize(10);
    const QList<int> lines = linesOf(box, 4);
    QVERIFY(lines.size() > 20);
    QCOMPARE(linesOf(box, 4, dots), lines);
}

void PageLinesTest::anAddressStaysWhole() {
    RichTextBox box;
    const QString text = u"words ahead of it http://example.org/some/where/2/else/more and more"_s;
    box.SetText(text);
    box.selectAll();
    box.SetSelFontSize(10);
    const int address = int(text.indexOf(u"http"_s));
    for (double width = 3.8; width < 4.8; width += 0.1) {
        const QList<int> lines = linesOf(box, width);
        QVERIFY(lines.size() >= 2);
        for (const int start : lines)
            QVERIFY2(start <= address || text[start - 1] == u' ', qPrintable(text.mid(start)));
    }
}

void PageLinesTest::anAddressLongerThanALineIsBroken() {
    RichTextBox box;
    box.SetText(u"http://example.org/"_s + u"some/where/"_s.repeated(30));
    const QList<int> lines = linesOf(box, 2);
    QVERIFY(lines.size() > 5);
    for (qsizetype i = 1; i < lines.size(); ++i)
        QVERIFY(lines[i] > lines[i - 1]);
}

void PageLinesTest::linesBreakAtTheMarksThatPartWords_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("behind");
    QTest::addColumn<bool>("breaks");
    QTest::newRow("numbers") << u"many words, pages 519-526"_s << u"519-"_s << true;
    QTest::newRow("path") << u"it is found in C:\\Program"_s << u"C:\\"_s << true;
    QTest::newRow("ahead of a backslash") << u"it is found in C:\\Program"_s << u"C:"_s << false;
    QTest::newRow("address") << u"many words of http://at-sea.org/a"_s << u"at-"_s << false;
    QTest::newRow("opening bracket") << u"many words (here [ in brackets ])"_s << u"[ "_s << false;
    QTest::newRow("blanks behind it")
        << u"many words (here [  in brackets ])"_s << u"[  "_s << true;
    QTest::newRow("ahead of it") << u"many words (here [ in brackets ])"_s << u"(here "_s << true;
    QTest::newRow("closing bracket") << u"many words (here [ in ] brackets)"_s << u"] "_s << true;
}

void PageLinesTest::linesBreakAtTheMarksThatPartWords() {
    QFETCH(QString, text);
    QFETCH(QString, behind);
    RichTextBox box;
    box.SetText(text);
    const int place = int(text.indexOf(behind) + behind.size());
    bool found = false;
    for (double width = 1.2; width < 3; width += 0.02)
        found |= linesOf(box, width).contains(place);
    QTEST(found, "breaks");
}

void PageLinesTest::linesGoOnBeyondTheMarginWhereTheFileSaysSo() {
    constexpr int Width = 4 * Inch;
    constexpr int Beyond = 720;
    const QByteArray words = QByteArray("some words ").repeated(40);
    const auto lines = [&](const QByteArray& paragraphs, int left, int width) {
        RichTextBox box;
        box.SetTextRTF(QString::fromLatin1("{\\rtf1" + paragraphs + '}'));
        QImage device = sheet(96);
        RangeFormatter formatter(box);
        QList<int> starts{0};
        while (starts.last() < int(box.Text().size()))
            starts << formatter.FormatPage(
                {nullptr, &device, QRectF(left, 0, width, 1), starts.last(), -1});
        return starts;
    };
    for (const QByteArray indent : {"\\ri-720 ", "\\li-720 "}) {
        const QByteArray beyond = "\\pard" + indent + words + "\\par";
        const QByteArray within = "\\pard " + words + "\\par";
        QVERIFY(lines(within, Inch, Width + Beyond) != lines(within, Inch, Width));
        QCOMPARE(lines(beyond, Inch, Width), lines(within, Inch, Width + Beyond));
        // Where there is no paper they stay within.
        QCOMPARE(lines(beyond, 0, Width), lines(within, 0, Width));
        // The paragraphs beside them do, too.
        const QList<int> both = lines(within + beyond, Inch, Width);
        const QList<int> alone = lines(within, Inch, Width);
        QCOMPARE(both.first(alone.size() - 1), alone.first(alone.size() - 1));
    }
}

void PageLinesTest::linesBeginBeyondTheMarginWhereTheFileSaysSo() {
    const auto leftOf = [](const QByteArray& indent) {
        RichTextBox box;
        box.SetTextRTF(QString::fromLatin1("{\\rtf1\\pard" + indent + " Here\\par}"));
        QImage image = sheet(96, 6);
        QPainter painter(&image);
        RangeFormatter(box).FormatPage(
            {&painter, &image, QRectF(2 * Inch, 0, 3 * Inch, 6 * Inch), 0, -1});
        painter.end();
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixel(x, y) != qRgb(255, 255, 255))
                    return x;
        return -1;
    };
    const int margin = leftOf({});
    QVERIFY(std::abs(leftOf("\\li-720") - (margin - 48)) <= 1);
    QVERIFY(std::abs(leftOf("\\li720") - (margin + 48)) <= 1);
    QVERIFY(std::abs(leftOf("\\li-720\\fi360") - (margin - 24)) <= 1);
}

void PageLinesTest::behindAnAddressPositionsAreThoseOfTheText() {
    RichTextBox box;
    box.SetText(u"a/b/c/d/e one\r\ntwo/three\r\nfour"_s);
    QCOMPARE(linesOf(box, 6), (QList<int>{0, 15, 26}));
}

void PageLinesTest::aRangeThatBeginsBehindAnAddressDrawsItsOwnCharacters() {
    RichTextBox box;
    box.SetText(u"a/b/c/d/e/f/g/h"_s);
    const auto inkFrom = [&](int first, int last) {
        QImage image = sheet(96, 2);
        QPainter painter(&image);
        RangeFormatter(box).FormatPage(
            {&painter, &image, QRectF(0, 0, 2 * Inch, Inch), first, last});
        painter.end();
        int columns = 0;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                    ++columns;
                    break;
                }
        return columns;
    };
    const int all = inkFrom(0, 15);
    const int parts = inkFrom(0, 7) + inkFrom(7, 15);
    QVERIFY(inkFrom(7, 15) > all / 3);
    QVERIFY2(std::abs(all - parts) <= 2, qPrintable(u"%1 and %2"_s.arg(all).arg(parts)));
}

void PageLinesTest::aLineHasRoomForAsManyLettersOfAFixedWidthAsThereAreToBe() {
    const QString family = u"Liberation Mono"_s;
    if (QFontInfo(QFont(family)).family() != family)
        QSKIP("The font is not there.");
    RichTextBox box;
    box.SetText(u"x"_s.repeated(38) + u' ' + u"y"_s.repeated(39) + u" z"_s);
    box.selectAll();
    box.SetSelFontName(family);
    box.SetSelFontSize(10); // twelve to the inch
    QCOMPARE(linesOf(box, 6.5), (QList<int>{0, 79}));
}

void PageLinesTest::aLineOfLettersOfOtherWidthsHasNoMoreRoomThanThePage() {
    RichTextBox box;
    box.SetText(u"some words that are willing to stand in one line"_s);
    box.selectAll();
    box.SetSelFontName(u"Liberation Sans"_s);
    box.SetSelFontSize(10);
    LayoutRuler twips(Inch);
    QTextCursor start(box.document());
    start.movePosition(QTextCursor::Right);
    QTextLayout line(box.Text(), QFont(start.charFormat().font(), &twips), &twips);
    QTextOption option;
    option.setUseDesignMetrics(true);
    line.setTextOption(option);
    line.beginLayout();
    QTextLine whole = line.createLine();
    whole.setLineWidth(10 * Inch);
    const double width = whole.naturalTextWidth();
    line.endLayout();
    QVERIFY(width > Inch);
    QCOMPARE(linesOf(box, (width + 1) / Inch).size(), 1);
    QCOMPARE(linesOf(box, (width - 1) / Inch).size(), 2);
}

void PageLinesTest::smallCapitalsAreFourFifthsOfTheirSize() {
    const auto inkOfRtf = [](const QByteArray& body) {
        RichTextBox box;
        box.SetTextRTF("{\\rtf1{\\fonttbl{\\f0 Liberation Sans;}}\\f0" + body + "\\par}");
        return inkOf(box);
    };
    const QRect small = inkOfRtf("\\fs100\\scaps hhhh");
    const QRect capitals = inkOfRtf("\\fs80 HHHH");
    QVERIFY(capitals.width() > 100);
    QVERIFY(std::abs(small.width() - capitals.width()) <= 1);
    QVERIFY(std::abs(small.height() - capitals.height()) <= 1);
    const QRect mixed = inkOfRtf("\\fs100\\scaps H7hh");
    const QRect asMixed = inkOfRtf("\\fs100 H7\\fs80 HH");
    QVERIFY(std::abs(mixed.width() - asMixed.width()) <= 1);
}

void PageLinesTest::lettersAreAsWideAsTheirFileSays() {
    RichTextBox box;
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1\\fs24 HHHHHHHH\\par}"));
    const int usual = inkOf(box).width();
    for (const int share : {50, 150, 200}) {
        box.SetTextRTF("{\\rtf1\\fs24\\charscalex" + QByteArray::number(share) + " HHHHHHHH\\par}");
        const int width = inkOf(box).width();
        QVERIFY2(std::abs(width - usual * share / 100) <= 4,
                 qPrintable(u"%1 of %2"_s.arg(width).arg(usual)));
        QVERIFY(box.TextRTF().contains("\\charscalex" + QByteArray::number(share)));
    }
}

void PageLinesTest::whatIsSetToTheRightStandsThereWhicheverWayItRuns() {
    for (const QByteArray& direction :
         {QByteArray(), QByteArray("\\rtlpar"), QByteArray("\\ltrpar")}) {
        RichTextBox box;
        box.SetTextRTF("{\\rtf1\\pard" + direction + "\\qr \\u1513?\\u1500?\\u1493?\\u1501?\\par}");
        QVERIFY2(inkOf(box).left() > 5 * 96, direction.constData());
        QCOMPARE(box.SelAlignment(), std::optional<int>(RichTextBox::rtfRight));
        QVERIFY(box.TextRTF().contains("\\qr"));
    }
}

void PageLinesTest::whatTheUserSetsToTheRightStandsThereWhicheverWayItRuns() {
    RichTextBox box;
    box.SetText(u"\u05e9\u05dc\u05d5\u05dd"_s);
    box.SetSelAlignment(RichTextBox::rtfRight);
    QVERIFY(inkOf(box).left() > 5 * 96);
    QCOMPARE(box.SelAlignment(), std::optional<int>(RichTextBox::rtfRight));
}

void PageLinesTest::aCharacterWithoutASignHasNoWidth_data() {
    QTest::addColumn<QByteArray>("character");
    QTest::newRow("of the upper half") << QByteArray("\\u157?");
    QTest::newRow("of the lower half") << QByteArray("\\u7?");
    QTest::newRow("behind the letters") << QByteArray("\\u127?");
}

void PageLinesTest::aCharacterWithoutASignHasNoWidth() {
    QFETCH(QByteArray, character);
    const auto widthOf = [](const QByteArray& text) {
        RichTextBox box;
        box.SetTextRTF("{\\rtf1{\\fonttbl{\\f0 Liberation Sans;}}\\f0\\fs48 " + text + "\\par}");
        return inkOf(box).width();
    };
    QCOMPARE(widthOf("HH" + character.repeated(3) + "HH"), widthOf("HHHH"));
}

void PageLinesTest::lettersJoinThatTheirFilePartsWithoutALook_data() {
    QTest::addColumn<QByteArray>("parted");
    QTest::newRow("language") << QByteArray("\\u1579?{\\lang1025 \\u1579?}");
    QTest::newRow("said twice") << QByteArray("\\u1579?{\\fs96 \\u1579?}");
    QTest::newRow("a place where lines may break")
        << QByteArray("\\u1579?{\\lang1025\\zwbo}\\u1579?");
    QTest::newRow("three runs") << QByteArray("\\u1579?{\\noproof \\u1579?}\\u1579?");
}

void PageLinesTest::lettersJoinThatTheirFilePartsWithoutALook() {
    const QString family = u"DejaVu Sans"_s;
    if (QFontInfo(QFont(family)).family() != family)
        QSKIP("The font is not there.");
    QFETCH(QByteArray, parted);
    const auto widthOf = [](RichTextBox& box, const QByteArray& text) {
        box.SetTextRTF("{\\rtf1\\deff0{\\fonttbl{\\f0 DejaVu Sans;}}\\pard\\f0\\fs96 " + text +
                       "\\par}");
        return inkOf(box).width();
    };
    RichTextBox box;
    const qsizetype letters = parted.count("\\u1579?");
    const int joined = widthOf(box, QByteArray("\\u1579?").repeated(letters));
    QVERIFY(widthOf(box, QByteArray("\\u1579?\\zwnj ").repeated(letters)) > joined + 10);
    QCOMPARE(widthOf(box, parted), joined);
    // Of the box nothing is lost.
    const QByteArray before = box.TextRTF();
    inkOf(box);
    QCOMPARE(box.TextRTF(), before);
}

void PageLinesTest::aJustifiedLineThatABreakEndsIsFullWhereTheFileAsksForIt_data() {
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("paragraph");
    QTest::addColumn<bool>("full");
    const auto row = [](const char* name, const char* head, const char* paragraph, bool full) {
        QTest::newRow(name) << QByteArray(head) << QByteArray(paragraph) << full;
    };
    row("asked for", "\\expshrtn", "\\qj H H H\\line i", true);
    row("not asked for", "", "\\qj H H H\\line i", false);
    row("asked not to", "\\expshrtn0", "\\qj H H H\\line i", false);
    row("not justified", "\\expshrtn", "\\ql H H H\\line i", false);
    row("end of the paragraph", "\\expshrtn", "\\qj H H H\\par i", false);
    row("one word", "\\expshrtn", "\\qj H\\line i", false);
    row("blanks at both ends", "\\expshrtn", "\\qj  H H H  \\line i", true);
    row("blanks in rows", "\\expshrtn", "\\qj H  H {\\b  }  H\\line i", true);
    row("a blank without a break", "\\expshrtn", "\\qj H\\~H H\\line i", true);
    row("behind a tab", "\\expshrtn", "\\qj H H\\tab H H\\line i", true);
    row("ahead of a tab", "\\expshrtn", "\\qj H H\\tab H\\line i", false);
    row("an indent", "\\expshrtn", "\\qj\\fi720\\li360 H H H\\line i", true);
    row("letters that run to the left", "\\expshrtn", "\\qj H H \\u1513? H\\line i", false);
}

void PageLinesTest::aJustifiedLineThatABreakEndsIsFullWhereTheFileAsksForIt() {
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, paragraph);
    RichTextBox box;
    box.SetTextRTF("{\\rtf1" + head + "{\\fonttbl{\\f0 Liberation Sans;}}\\pard\\f0\\fs48" +
                   paragraph + "\\par}");
    constexpr int PageWidth = 6 * 96;
    constexpr int SideOfLetter = 3; // dots that a letter leaves free beside it
    const int right = inkOf(box).right();
    QVERIFY2(right < PageWidth, qPrintable(QString::number(right)));
    QTEST(right > PageWidth - SideOfLetter - 2, "full");
    // The box shows what it showed.
    QVERIFY(!box.TextRTF().isEmpty());
}

void PageLinesTest::aLineThatIsMadeFullBreaksAsItDid_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("words") << QByteArray("some words that stand in a line");
    QTest::newRow("blanks in two runs")
        << QByteArray("some {\\b  words } that {\\i  }{\\b  } stand");
    QTest::newRow("blanks without a break") << QByteArray("some\\~words \\~that\\~ stand");
    QTest::newRow("paragraph that runs to the left")
        << QByteArray("\\rtlpar some words that stand");
    QTest::newRow("brackets") << QByteArray("some ( words ) that [ stand ] in a line");
    QTest::newRow("letters of a fixed width") << QByteArray("{\\f1 some words} that stand");
    QTest::newRow("small capitals") << QByteArray("{\\scaps Some Words That} stand");
    QTest::newRow("letters further apart") << QByteArray("{\\expndtw40 some words} that stand");
}

void PageLinesTest::aLineThatIsMadeFullBreaksAsItDid() {
    QFETCH(QByteArray, line);
    const auto linesIn = [&](const QByteArray& head, double inches) {
        RichTextBox box;
        box.SetTextRTF("{\\rtf1" + head +
                       "{\\fonttbl{\\f0 Liberation Serif;}{\\f1 Liberation Mono;}}\\pard\\qj\\f0 " +
                       (line + "\\line ").repeated(3) + "end\\par}");
        return linesOf(box, inches);
    };
    for (double inches = 1; inches < 4; inches += 0.17)
        QCOMPARE(linesIn("\\expshrtn", inches), linesIn({}, inches));
}

void PageLinesTest::signsShowInWhatStandsForTheirFont_data() {
    QTest::addColumn<QByteArray>("font");
    QTest::newRow("of Windows") << QByteArray("\\fcharset2 Symbol");
    QTest::newRow("of other systems") << QByteArray("\\fcharset2 Standard Symbols L");
    QTest::newRow("told as one of letters") << QByteArray("\\fcharset0 Standard Symbols L");
}

void PageLinesTest::signsShowInWhatStandsForTheirFont() {
    QFETCH(QByteArray, font);
    RichTextBox box;
    box.SetTextRTF("{\\rtf1{\\fonttbl{\\f0\\fnil" + font + ";}}\\f0\\fs48 \\u945?\\u8364?\\par}");
    constexpr int TwoSigns = 20; // dots, of 24 points
    QVERIFY(inkOf(box).width() > TwoSigns);
}

void PageLinesTest::textRunsTheWayThatItsFileSays_data() {
    QTest::addColumn<QByteArray>("shape");
    QTest::addColumn<bool>("onTheRight");
    QTest::newRow("nothing said") << QByteArray() << true;
    QTest::newRow("to the right") << QByteArray("\\ltrpar") << false;
    QTest::newRow("to the right, set to the right") << QByteArray("\\ltrpar\\qr") << true;
    QTest::newRow("to the left") << QByteArray("\\rtlpar") << true;
    QTest::newRow("to the left, set to the left") << QByteArray("\\rtlpar\\ql") << false;
}

void PageLinesTest::textRunsTheWayThatItsFileSays() {
    QFETCH(QByteArray, shape);
    RichTextBox box;
    box.SetTextRTF(
        QString::fromLatin1("{\\rtf1\\pard" + shape + " \\u1513?\\u1500?\\u1493?\\u1501?\\par}"));
    QTEST(inkOf(box).left() > 5 * 96, "onTheRight");
    const QByteArray written = box.TextRTF();
    QVERIFY2(written.contains("\\pard" + shape), written);
    RichTextBox again;
    again.SetTextRTF(written);
    QTEST(inkOf(again).left() > 5 * 96, "onTheRight");
}

ORVALIS_TEST_MAIN_WITH(QApplication, PageLinesTest)
#include "page_lines_test.moc"
