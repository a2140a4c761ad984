// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/format_range.h"
#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/heard_progress.h"
#include "support/test_main.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QPainter>
#include <QTextBlock>

#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Inch = 1440;
constexpr int DotsPerMeter = 3780; // 96 to the inch
constexpr QRectF WholePage(Inch, Inch, 4 * Inch, 4 * Inch);

QImage sheet() {
    QImage image(6 * 96, 6 * 96, QImage::Format_RGB32);
    image.setDotsPerMeterX(DotsPerMeter);
    image.setDotsPerMeterY(DotsPerMeter);
    image.fill(Qt::white);
    return image;
}

struct Page {
    QImage image;
    int next;
};

/// All pages of a box, drawn; at most a hundred.
QList<Page> pagesOf(RichTextBox& box, const QRectF& rect = WholePage) {
    QList<Page> pages;
    RangeFormatter formatter(box);
    const int length = int(box.Text().size());
    int first = 0;
    do {
        Page page{sheet(), 0};
        QPainter painter(&page.image);
        page.next = formatter.FormatPage({&painter, &page.image, rect, first, -1});
        painter.end();
        pages << page;
        first = page.next;
    } while (first < length && pages.size() < 100);
    return pages;
}

bool hasInk(const QImage& image, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                return true;
    }
    return false;
}

QString manyLines(int count) {
    QString text;
    for (int i = 1; i <= count; ++i)
        text += u"line "_s + QString::number(i) + u"\r\n"_s;
    text.chop(2);
    return text;
}

void paste(RichTextBox& box, const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QApplication::clipboard()->setImage(picture);
    box.Paste();
}

QRect inkBounds(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                bounds |= QRect(x, y, 1, 1);
    }
    return bounds;
}

} // namespace

class FormatRangeTest : public QObject {
    Q_OBJECT
private slots:
    void oneLineIsOnePage();
    void whoWaitsHearsHowMuchIsLaidOut();
    void anEmptyBoxIsDoneAtOnce();
    void aBoxOfFormatsAloneHasNothingToPrint();
    void manyLinesBecomePagesThatFollowEachOther();
    void eachPageBeginsAtTheTopOfItsRectangle();
    void noLineIsCutInTwo();
    void aParagraphLongerThanAPageGoesOnBehindItsLines();
    void aDocumentOfExactlyOnePageHasNoSecond();
    void aPictureLargerThanThePageShrinks();
    void aPictureThatFitsKeepsItsSize();
    void aHiddenPictureIsNotPrinted();
    void aLineTallerThanThePageStillAdvances();
    void aPageBreakBeginsAPage();
    void aRangeEndsWhereItIsTold();
    void aRangeDrawsItsOwnCharactersOfALine_data();
    void aRangeDrawsItsOwnCharactersOfALine();
    void aRangeWithItsFirstCharacterHasItsLabel();
    void measuringDrawsNothing();
    void withoutADeviceThePainterTells();
    void withoutPainterAndDeviceThereIsNoPage();
    void printingIsTheSameOnAFinerDevice();
    void aDocumentOfMoreDotsThanCanBeCountedIsPrintedWhole();
    void aChangedTextIsFormattedAnew();
    void aChangedFormatIsFormattedAnew_data();
    void aChangedFormatIsFormattedAnew();
    void anotherRectangleOrDeviceIsFormattedAnew();
    void theBoxItselfStaysAsItWas();
};

void FormatRangeTest::oneLineIsOnePage() {
    RichTextBox box;
    box.SetText(u"one line"_s);
    const QList<Page> pages = pagesOf(box);
    QCOMPARE(pages.size(), 1);
    QCOMPARE(pages.first().next, 8);
    QVERIFY(hasInk(pages.first().image, QRect(96, 96, 200, 40)));
    QVERIFY(!hasInk(pages.first().image, QRect(0, 0, 95, 576)));
    QVERIFY(!hasInk(pages.first().image, QRect(0, 0, 576, 95)));
}

void FormatRangeTest::anEmptyBoxIsDoneAtOnce() {
    RichTextBox box;
    const QList<Page> pages = pagesOf(box);
    QCOMPARE(pages.size(), 1);
    QCOMPARE(pages.first().next, 0);
    QVERIFY(inkBounds(pages.first().image).isEmpty());
}

void FormatRangeTest::aBoxOfFormatsAloneHasNothingToPrint() {
    RichTextBox box;
    box.SetSelBold(true);
    box.SetSelFontSize(40);
    box.SetSelAlignment(RichTextBox::rtfCenter);
    QCOMPARE(box.Text(), QString());
    const QList<Page> pages = pagesOf(box);
    QCOMPARE(pages.size(), 1);
    QCOMPARE(pages.first().next, 0);
    QVERIFY(inkBounds(pages.first().image).isEmpty());
}

void FormatRangeTest::manyLinesBecomePagesThatFollowEachOther() {
    RichTextBox box;
    box.SetText(manyLines(100));
    const QList<Page> pages = pagesOf(box);
    QVERIFY(pages.size() >= 3);
    const QString text = box.Text();
    int before = 0;
    for (const Page& page : pages) {
        QVERIFY(page.next > before);
        if (page.next < text.size())
            QCOMPARE(text.mid(page.next, 5), u"line "_s);
        before = page.next;
    }
    QCOMPARE(before, int(text.size()));
}

void FormatRangeTest::eachPageBeginsAtTheTopOfItsRectangle() {
    RichTextBox box;
    box.SetText(manyLines(100));
    const QList<Page> pages = pagesOf(box);
    const int top = inkBounds(pages.first().image).top();
    QVERIFY(top >= 96);
    for (const Page& page : pages) {
        QVERIFY(std::abs(inkBounds(page.image).top() - top) <= 1);
        QVERIFY(inkBounds(page.image).bottom() < 5 * 96);
    }
}

void FormatRangeTest::noLineIsCutInTwo() {
    // A page whose height ends in the middle of a line leaves that line to the next page, so that
    // the two draw it once and whole.
    RichTextBox box;
    box.SetText(manyLines(3));
    const QList<Page> whole = pagesOf(box);
    const int lineHeight = inkBounds(whole.first().image).height() / 3;
    const QRectF short2(Inch, Inch, 4 * Inch, (lineHeight * 2.5) * 15);
    const QList<Page> pages = pagesOf(box, short2);
    QCOMPARE(pages.size(), 2);
    QCOMPARE(pages.first().next, 16);
    const QImage last = pages.last().image.copy(inkBounds(pages.last().image));
    box.SetText(u"line 3"_s);
    const QImage alone = pagesOf(box).first().image;
    QCOMPARE(last, alone.copy(inkBounds(alone)));
}

void FormatRangeTest::aParagraphLongerThanAPageGoesOnBehindItsLines() {
    RichTextBox box;
    box.SetText(u"many words in one paragraph "_s.repeated(400));
    const QList<Page> pages = pagesOf(box);
    QVERIFY(pages.size() >= 2);
    QVERIFY(pages.first().next < int(box.Text().size()));
    QCOMPARE(box.Text().at(pages.first().next - 1), u' ');
    QCOMPARE(pages.last().next, int(box.Text().size()));
}

void FormatRangeTest::aDocumentOfExactlyOnePageHasNoSecond() {
    RichTextBox box;
    box.SetText(manyLines(100));
    const int fits = box.Text().left(pagesOf(box).first().next).count(u'\n');
    box.SetText(manyLines(fits));
    const QList<Page> exact = pagesOf(box);
    QCOMPARE(exact.size(), 1);
    QCOMPARE(exact.first().next, int(box.Text().size()));
    box.SetText(manyLines(fits + 1));
    QCOMPARE(pagesOf(box).size(), 2);
}

void FormatRangeTest::aPictureLargerThanThePageShrinks() {
    for (const QSize& size : {QSize(3000, 100), QSize(100, 3000), QSize(2000, 2000)}) {
        RichTextBox box;
        paste(box, size);
        const QList<Page> pages = pagesOf(box);
        QCOMPARE(pages.size(), 1);
        QCOMPARE(pages.first().next, 1);
        const QRect ink = inkBounds(pages.first().image);
        QVERIFY(ink.width() <= 4 * 96);
        QVERIFY(ink.height() <= 4 * 96);
        QVERIFY(ink.width() > 300 || ink.height() > 300);
        const double shape = double(size.width()) / size.height();
        QVERIFY(std::abs(ink.width() - ink.height() * shape) <= 1.5 * qMax(1.0, shape));
    }
}

void FormatRangeTest::aHiddenPictureIsNotPrinted() {
    QImage picture(900, 900, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    RichTextBox box;
    box.SetTextRTF("{\\rtf1{\\v{\\pict\\pngblip " + png.toHex() + "}}\\par}");
    QCOMPARE(box.Text(), u" "_s);
    const QList<Page> pages = pagesOf(box);
    QCOMPARE(pages.size(), 1);
    QVERIFY(!hasInk(pages.first().image, pages.first().image.rect()));
}

void FormatRangeTest::aPictureThatFitsKeepsItsSize() {
    RichTextBox box;
    paste(box, QSize(60, 40));
    QCOMPARE(inkBounds(pagesOf(box).first().image).size(), QSize(60, 40));
}

void FormatRangeTest::aLineTallerThanThePageStillAdvances() {
    RichTextBox box;
    box.SetText(u"A\r\nB\r\nC"_s);
    box.selectAll();
    box.SetSelFontSize(200);
    const QList<Page> pages = pagesOf(box, QRectF(0, 0, 4 * Inch, Inch));
    QCOMPARE(pages.size(), 3);
    QCOMPARE(pages.at(0).next, 3);
    QCOMPARE(pages.at(1).next, 6);
    QCOMPARE(pages.at(2).next, 7);
}

void FormatRangeTest::aPageBreakBeginsAPage() {
    RichTextBox box;
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 one\\par\\pagebb two\\par}"));
    const QList<Page> pages = pagesOf(box);
    QCOMPARE(pages.size(), 2);
    QCOMPARE(pages.first().next, 5);
}

void FormatRangeTest::aRangeEndsWhereItIsTold() {
    RichTextBox box;
    RangeFormatter formatter(box);
    box.SetText(manyLines(20));
    QImage image = sheet();
    QPainter painter(&image);
    QCOMPARE(formatter.FormatPage({&painter, &image, WholePage, 0, 16}), 16);
    painter.end();
    QImage two = sheet();
    box.SetText(manyLines(2));
    QPainter other(&two);
    formatter.FormatPage({&other, &two, WholePage, 0, -1});
    other.end();
    QCOMPARE(image, two);
}

void FormatRangeTest::aRangeDrawsItsOwnCharactersOfALine_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("the beginning of a line") << u"abcdef"_s << 0 << 3;
    QTest::newRow("the end of a line") << u"abcdef"_s << 4 << -1;
    QTest::newRow("the middle of a line") << u"abcdef"_s << 2 << 4;
    QTest::newRow("parts of two lines") << u"abcdef\r\nghijkl"_s << 4 << 10;
    QTest::newRow("nothing") << u"abcdef"_s << 3 << 3;
    QTest::newRow("letters that run the other way")
        << u"\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5"_s << 2 << 4;
}

/// What is drawn is what is there when all other characters have the colour of the paper.
void FormatRangeTest::aRangeDrawsItsOwnCharactersOfALine() {
    QFETCH(QString, text);
    QFETCH(int, first);
    QFETCH(int, last);
    const int end = last < 0 ? int(text.size()) : last;
    RichTextBox box;
    box.SetText(text);
    box.selectAll();
    box.SetSelFontName(u"Courier New"_s); // letters that stay inside their own room
    box.SetSelFontSize(24);
    QImage drawn = sheet();
    QPainter painter(&drawn);
    QCOMPARE(RangeFormatter(box).FormatPage({&painter, &drawn, WholePage, first, last}), end);
    painter.end();

    box.SetSelStart(0);
    box.SetSelLength(first);
    box.SetSelColor(0xFFFFFF);
    box.SetSelStart(end);
    box.SetSelLength(int(text.size()));
    box.SetSelColor(0xFFFFFF);
    QImage expected = pagesOf(box).constFirst().image;
    if (first == end)
        expected.fill(Qt::white);
    const QRect ink = inkBounds(expected);
    QCOMPARE(ink.isEmpty(), first == end);
    const QRect found = inkBounds(drawn);
    for (const int difference :
         {found.left() - ink.left(), found.right() - ink.right(), found.bottom() - ink.bottom()})
        QVERIFY2(std::abs(difference) <= 1, qPrintable(QString::number(difference)));
}

void FormatRangeTest::aRangeWithItsFirstCharacterHasItsLabel() {
    RichTextBox box;
    box.SetText(u"abcdef"_s);
    box.SetSelIndent(720);
    box.SetSelBullet(true);
    const auto leftmost = [&box](int first, int last) {
        QImage image = sheet();
        QPainter painter(&image);
        RangeFormatter(box).FormatPage({&painter, &image, WholePage, first, last});
        painter.end();
        return inkBounds(image).left();
    };
    const int bullet = leftmost(0, -1);
    QCOMPARE(leftmost(0, 3), bullet);
    QVERIFY(leftmost(1, 3) > bullet + 10);
}

void FormatRangeTest::withoutADeviceThePainterTells() {
    RichTextBox box;
    box.SetText(manyLines(100));
    QImage image = sheet();
    QPainter painter(&image);
    const int next = RangeFormatter(box).FormatPage({&painter, nullptr, WholePage, 0, -1});
    painter.end();
    const QList<Page> pages = pagesOf(box);
    QCOMPARE(next, pages.constFirst().next);
    QCOMPARE(image, pages.constFirst().image);
}

void FormatRangeTest::withoutPainterAndDeviceThereIsNoPage() {
    RichTextBox box;
    box.SetText(u"one"_s);
    const auto failure = firstFailure([&] {
        RangeFormatter(box).FormatPage({nullptr, nullptr, WholePage, 0, -1});
    });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidProcedureCall);
}

void FormatRangeTest::measuringDrawsNothing() {
    RichTextBox box;
    box.SetText(manyLines(100));
    QImage image = sheet();
    const int next = RangeFormatter(box).FormatPage({nullptr, &image, WholePage, 0, -1});
    QCOMPARE(next, pagesOf(box).first().next);
    QVERIFY(inkBounds(image).isEmpty());
}

void FormatRangeTest::printingIsTheSameOnAFinerDevice() {
    RichTextBox box;
    box.SetText(u"many words in one paragraph "_s.repeated(200));
    paste(box, QSize(50, 50));
    QImage fine(6 * 600, 6 * 600, QImage::Format_RGB32);
    fine.setDotsPerMeterX(qRound(600 / 0.0254));
    fine.setDotsPerMeterY(qRound(600 / 0.0254));
    fine.fill(Qt::white);
    QPainter painter(&fine);
    const int next = RangeFormatter(box).FormatPage({&painter, &fine, WholePage, 0, -1});
    painter.end();
    const QRect ink = inkBounds(fine);
    QVERIFY(ink.left() >= 600 && ink.right() < 5 * 600);
    QVERIFY(ink.top() >= 600 && ink.bottom() < 5 * 600);
    QVERIFY(ink.width() > 3 * 600);
    // Letters are measured more finely there, so the lines break nearly, not exactly, alike.
    QVERIFY(std::abs(next - pagesOf(box).first().next) < next / 10);
}

/// 1,200 dots to the inch are more than the layout can count for 60,000 lines.
void FormatRangeTest::aDocumentOfMoreDotsThanCanBeCountedIsPrintedWhole() {
    constexpr int Lines = 60'000;
    constexpr int Dots = 1200;
    RichTextBox box;
    box.SetText(manyLines(Lines));
    QImage fine(6 * Dots, 6 * Dots, QImage::Format_Grayscale8);
    fine.setDotsPerMeterX(qRound(Dots / 0.0254));
    fine.setDotsPerMeterY(qRound(Dots / 0.0254));
    RangeFormatter pages(box);
    const int length = int(box.Text().size());
    int last = 0;
    int count = 0;
    for (int next = 0; next < length; ++count) {
        last = next;
        next = pages.FormatPage({nullptr, &fine, WholePage, next, -1});
        QVERIFY(next > last);
    }
    RichTextBox few;
    few.SetText(manyLines(100));
    const int onOne = few.Text()
                          .first(RangeFormatter(few).FormatPage({nullptr, &fine, WholePage, 0, -1}))
                          .count(u'\n');
    QVERIFY2(std::abs(count - Lines / onOne) <= Lines / onOne / 20,
             qPrintable(QString::number(count)));

    // The last page stands where a short document would have it.
    const auto inkOf = [&fine](RangeFormatter& formatter, int first) {
        fine.fill(Qt::white);
        QPainter painter(&fine);
        formatter.FormatPage({&painter, &fine, WholePage, first, -1});
        painter.end();
        return inkBounds(fine);
    };
    const QRect ink = inkOf(pages, last);
    few.SetText(box.Text().mid(last));
    RangeFormatter same(few);
    const QRect expected = inkOf(same, 0);
    constexpr int Near = Dots / 20;
    QVERIFY(std::abs(ink.left() - expected.left()) < Near &&
            std::abs(ink.top() - expected.top()) < Near);
    QVERIFY(std::abs(ink.right() - expected.right()) < Near);
    QVERIFY2(std::abs(ink.bottom() - expected.bottom()) < 2 * Near,
             qPrintable(u"%1, %2"_s.arg(ink.bottom()).arg(expected.bottom())));
}

void FormatRangeTest::aChangedTextIsFormattedAnew() {
    RichTextBox box;
    RangeFormatter formatter(box);
    box.SetText(manyLines(100));
    QImage image = sheet();
    QVERIFY(formatter.FormatPage({nullptr, &image, WholePage, 0, -1}) < int(box.Text().size()));
    box.SetText(u"short"_s);
    QCOMPARE(formatter.FormatPage({nullptr, &image, WholePage, 0, -1}), 5);
    box.SetSelText(u"not so "_s);
    QCOMPARE(formatter.FormatPage({nullptr, &image, WholePage, 0, -1}), 12);
}

void FormatRangeTest::aChangedFormatIsFormattedAnew_data() {
    using Change = std::function<void(RichTextBox&)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("size") << Change([](RichTextBox& box) { box.SetSelFontSize(30); });
    QTest::newRow("size, in a batch") << Change([](RichTextBox& box) {
        const RichTextBox::Batch batch(box);
        box.SetSelFontSize(30);
    });
    QTest::newRow("size of the box") << Change([](RichTextBox& box) { box.SetFontSize(30); });
    QTest::newRow("indent") << Change([](RichTextBox& box) { box.SetSelIndent(3 * Inch); });
    QTest::newRow("bullets") << Change([](RichTextBox& box) {
        box.SetSelBullet(true);
        box.SetSelIndent(3 * Inch);
    });
    QTest::newRow("undo") << Change([](RichTextBox& box) {
        box.Undo(); // back to the large size that the words had
    });
}

/// A page may be printed, a format changed, and the next page printed; or the same box again.
void FormatRangeTest::aChangedFormatIsFormattedAnew() {
    QFETCH(std::function<void(RichTextBox&)>, change);
    RichTextBox box;
    RangeFormatter formatter(box);
    box.SetText(u"words that fill their line and then the next ones too, "_s.repeated(60));
    box.selectAll();
    box.SetSelFontSize(20);
    box.SetSelFontSize(10);
    QImage image = sheet();
    const int before = formatter.FormatPage({nullptr, &image, WholePage, 0, -1});
    change(box);
    const int after = formatter.FormatPage({nullptr, &image, WholePage, 0, -1});
    QVERIFY2(after < before, qPrintable(u"%1, %2"_s.arg(before).arg(after)));
    QCOMPARE(RangeFormatter(box).FormatPage({nullptr, &image, WholePage, 0, -1}), after);
}

void FormatRangeTest::anotherRectangleOrDeviceIsFormattedAnew() {
    RichTextBox box;
    RangeFormatter formatter(box);
    box.SetText(u"words that fill their line and then the next ones too, "_s.repeated(60));
    QImage image = sheet();
    const int before = formatter.FormatPage({nullptr, &image, WholePage, 0, -1});
    const QRectF narrow(Inch, Inch, 2 * Inch, 4 * Inch);
    QVERIFY(formatter.FormatPage({nullptr, &image, narrow, 0, -1}) < before * 2 / 3);

    QCOMPARE(formatter.FormatPage({nullptr, &image, WholePage, 0, -1}), before);
    // The same device prints finer than before: a page holds as much, though not as many dots.
    image.setDotsPerMeterX(4 * DotsPerMeter);
    image.setDotsPerMeterY(4 * DotsPerMeter);
    const int finer = formatter.FormatPage({nullptr, &image, WholePage, 0, -1});
    QVERIFY2(std::abs(finer - before) < before / 4, qPrintable(u"%1, %2"_s.arg(before).arg(finer)));
}

void FormatRangeTest::theBoxItselfStaysAsItWas() {
    RichTextBox box;
    paste(box, QSize(2000, 2000));
    const QByteArray before = box.TextRTF();
    pagesOf(box);
    QCOMPARE(box.TextRTF(), before);
    QCOMPARE(box.SelStart(), 1);
}

void FormatRangeTest::whoWaitsHearsHowMuchIsLaidOut() {
    RichTextBox box;
    box.SetText(QString(u"A line of a long text.\r\n"_s).repeated(4000));
    QImage paper = sheet();
    FormatRange range;
    range.device = &paper;
    range.rect = WholePage;
    test::HeardProgress heard;
    const int next = RangeFormatter(box, heard.hears()).FormatPage(range);
    QCOMPARE(next, RangeFormatter(box).FormatPage(range));
    QVERIFY(heard.roseInSteps(0.1));
}

ORVALIS_TEST_MAIN_WITH(QApplication, FormatRangeTest)
#include "format_range_test.moc"
