// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/print_rtf.h"

#include "controls/rich_text_box.h"
#include "support/recording_printer.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

QString lines(int count) {
    QStringList text;
    for (int i = 1; i <= count; ++i)
        text << u"Line %1"_s.arg(i);
    return text.join(u"\r\n"_s);
}

/// The box of what is drawn on a page, in pixels.
QRect inkOf(const QImage& page) {
    QRect ink;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (page.pixelColor(x, y) != Qt::white)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

} // namespace

class PrintRtfTest : public QObject {
    Q_OBJECT
private slots:
    void theAreaIsTheSheetWithoutItsMarginsSeenFromThePrintableCorner();
    void offsetsAreRoundedToWholeTwips();
    void eachMarginMovesItsOwnEdge();
    void marginsThatLeaveNoRoomGiveWay_data();
    void marginsThatLeaveNoRoomGiveWay();
    void aSheetOfThreeCentimetresIsPrintedWhole();
    void aSheetSmallerThanALetterEndsAsWell();
    void aBlankBeginsTheJobAndEachFurtherPage();
    void aDocumentOfExactlyOnePageStartsNoOther();
    void eachPageHasTheSameMarginsAndNothingBesideTheText();
    void allOfTheTextIsPrintedOnce();
    void aPictureAloneIsOnePage();
    void withoutAPrinterNothingIsDone();
    void aPrinterThatGivesUpLeavesTheJobWithoutItsEnd();
    void afterAFailureTheSameDocumentPrints();
};

void PrintRtfTest::theAreaIsTheSheetWithoutItsMarginsSeenFromThePrintableCorner() {
    RecordingPrinter printer; // 8 by 11 inches; 1/4 inch left and 1/2 inch above out of reach
    QCOMPARE(printArea(printer, {}),
             QRect(1440 - 360, 1440 - 720, 8 * 1440 - 2880, 11 * 1440 - 2880));
}

void PrintRtfTest::offsetsAreRoundedToWholeTwips() {
    RecordingPrinter printer;
    printer.paper = {
        .paper = QSize(4800, 6600), .margins = QMargins(17, 19, 0, 0), .resolution = {600, 600}};
    // 17 pixels are 40.8 twips, 19 are 45.6.
    QCOMPARE(printArea(printer, {}).topLeft(), QPoint(1440 - 41, 1440 - 46));
}

void PrintRtfTest::eachMarginMovesItsOwnEdge() {
    RecordingPrinter printer;
    const QRect all = printArea(printer, {.left = 0, .top = 0, .right = 0, .bottom = 0});
    QCOMPARE(all, QRect(-360, -720, 8 * 1440, 11 * 1440));
    QCOMPARE(printArea(printer, {.left = 100, .top = 0, .right = 0, .bottom = 0}),
             all.adjusted(100, 0, 0, 0));
    QCOMPARE(printArea(printer, {.left = 0, .top = 100, .right = 0, .bottom = 0}),
             all.adjusted(0, 100, 0, 0));
    QCOMPARE(printArea(printer, {.left = 0, .top = 0, .right = 100, .bottom = 0}),
             all.adjusted(0, 0, -100, 0));
    QCOMPARE(printArea(printer, {.left = 0, .top = 0, .right = 0, .bottom = 100}),
             all.adjusted(0, 0, 0, -100));
}

void PrintRtfTest::marginsThatLeaveNoRoomGiveWay_data() {
    QTest::addColumn<PrintMargins>("margins");
    // The printer reaches 7.5 by 10 inches, and of the sheet's 8 by 11 a quarter of an inch is room
    // enough.
    QTest::addColumn<QRect>("area");
    QTest::newRow("a quarter of an inch wide")
        << PrintMargins{.left = 5760, .top = 1440, .right = 5400, .bottom = 1440}
        << QRect(360, 48, 24, 9 * 96);
    QTest::newRow("less than that wide")
        << PrintMargins{.left = 5760, .top = 1440, .right = 5401, .bottom = 1440}
        << QRect(0, 48, 720, 9 * 96);
    QTest::newRow("nothing of the height")
        << PrintMargins{.left = 1440, .top = 9000, .right = 1440, .bottom = 9000}
        << QRect(72, 0, 6 * 96, 960);
}

void PrintRtfTest::marginsThatLeaveNoRoomGiveWay() {
    QFETCH(PrintMargins, margins);
    QFETCH(QRect, area);
    RecordingPrinter printer;
    RichTextBox box;
    box.SetText(u"Mill Lane and the harbour "_s.repeated(40));
    printPages(box, printer, margins);
    QCOMPARE(printer.jobs, 1);
    for (const QImage& page : printer.pages) {
        const QRect ink = inkOf(page);
        QVERIFY(!ink.isEmpty() && area.contains(ink));
    }
    QVERIFY(inkOf(printer.pages[0]).width() > area.width() * 3 / 4);
}

void PrintRtfTest::aSheetOfThreeCentimetresIsPrintedWhole() {
    RecordingPrinter printer;
    printer.paper = {
        .paper = QSize(113, 113), .margins = QMargins(4, 4, 4, 4), .resolution = {96, 96}};
    RichTextBox box;
    box.SetText(u"Anna Lee\r\nMill Lane 4\r\nHarbour Town\r\n"_s + lines(20));
    printPages(box, printer, {});
    QCOMPARE(printer.jobs, 1);
    QVERIFY(printer.pages.size() > 1 && printer.pages.size() < 10);
    for (const QImage& page : printer.pages)
        QVERIFY(!inkOf(page).isEmpty());
}

void PrintRtfTest::aSheetSmallerThanALetterEndsAsWell() {
    RecordingPrinter printer;
    printer.paper = {.paper = QSize(9, 9), .margins = QMargins(4, 4, 4, 4), .resolution = {96, 96}};
    RichTextBox box;
    box.SetText(u"Anna"_s);
    QImage picture(300, 300, QImage::Format_RGB32);
    picture.fill(Qt::red);
    box.textCursor().insertImage(picture);
    printPages(box, printer, {});
    QCOMPARE(printer.jobs, 1);
    QVERIFY(printer.pages.size() <= 5); // each character, at the worst
}

void PrintRtfTest::aBlankBeginsTheJobAndEachFurtherPage() {
    RecordingPrinter printer;
    RichTextBox box;
    box.SetText(lines(150));
    printPages(box, printer, {});
    QCOMPARE(printer.pages.size(), std::size_t(3));
    QCOMPARE(printer.calls, (QStringList{u"Print"_s, u"NewPage"_s, u"Print"_s, u"NewPage"_s,
                                         u"Print"_s, u"EndDoc"_s}));
    QCOMPARE(printer.printed, (QStringList{u" "_s, u" "_s, u" "_s}));
}

void PrintRtfTest::aDocumentOfExactlyOnePageStartsNoOther() {
    RichTextBox box;
    // As many lines as the page takes: one more begins the second page.
    int fit = 1;
    for (;; ++fit) {
        RecordingPrinter printer;
        box.SetText(lines(fit + 1));
        printPages(box, printer, {});
        if (printer.pages.size() > 1)
            break;
    }
    RecordingPrinter printer;
    box.SetText(lines(fit));
    printPages(box, printer, {});
    QCOMPARE(printer.calls, (QStringList{u"Print"_s, u"EndDoc"_s}));
}

void PrintRtfTest::eachPageHasTheSameMarginsAndNothingBesideTheText() {
    RecordingPrinter printer;
    RichTextBox box;
    box.SetText(lines(150));
    printPages(box, printer, {});
    QCOMPARE(printer.pages.size(), std::size_t(3));
    // One inch from the sheet's edges, of which the printer does not reach 1/4 and 1/2.
    const QRect area(72, 48, 6 * 96, 9 * 96);
    const QRect first = inkOf(printer.pages[0]);
    for (const QImage& page : printer.pages) {
        const QRect ink = inkOf(page);
        QVERIFY(area.contains(ink));
        QCOMPARE(ink.topLeft(), first.topLeft());
    }
    // A full page leaves no room for another line.
    QVERIFY(area.bottom() - first.bottom() < 20);
}

void PrintRtfTest::allOfTheTextIsPrintedOnce() {
    RecordingPrinter printer;
    RichTextBox box;
    box.SetText(lines(100));
    printPages(box, printer, {});
    int height = 0;
    for (const QImage& page : printer.pages)
        height += inkOf(page).height();
    RecordingPrinter long1;
    long1.paper.paper.setHeight(11 * 96 * 4);
    printPages(box, long1, {});
    QCOMPARE(long1.pages.size(), std::size_t(1));
    const int whole = inkOf(long1.pages[0]).height();
    // At each break the gap between two lines is no ink.
    QVERIFY2(qAbs(whole - height) <= 12, qPrintable(u"%1 %2"_s.arg(whole).arg(height)));
}

void PrintRtfTest::aPictureAloneIsOnePage() {
    RecordingPrinter printer;
    RichTextBox box;
    QImage picture(3000, 3000, QImage::Format_RGB32);
    picture.fill(Qt::red);
    box.textCursor().insertImage(picture);
    printPages(box, printer, {});
    QCOMPARE(printer.pages.size(), std::size_t(1));
    QVERIFY(QRect(72, 48, 6 * 96, 9 * 96).contains(inkOf(printer.pages[0])));
}

void PrintRtfTest::withoutAPrinterNothingIsDone() {
    RecordingPrinter printer;
    printer.missing = true;
    RichTextBox box;
    box.SetText(lines(3));
    const auto failure = firstFailure([&] { printPages(box, printer, {}); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::PrinterError);
    QCOMPARE(printer.calls, QStringList{u"Print"_s});
}

void PrintRtfTest::aPrinterThatGivesUpLeavesTheJobWithoutItsEnd() {
    RecordingPrinter printer;
    printer.failsAtPage = 2;
    RichTextBox box;
    box.SetText(lines(150));
    QVERIFY(firstFailure([&] { printPages(box, printer, {}); }));
    QCOMPARE(printer.calls, (QStringList{u"Print"_s, u"NewPage"_s}));
    QCOMPARE(printer.jobs, 0);
}

void PrintRtfTest::afterAFailureTheSameDocumentPrints() {
    RichTextBox box;
    box.SetText(lines(150));
    RecordingPrinter broken;
    broken.failsAtPage = 2;
    QVERIFY(firstFailure([&] { printPages(box, broken, {}); }));
    RecordingPrinter printer;
    printPages(box, printer, {});
    QCOMPARE(printer.pages.size(), std::size_t(3));
}

ORVALIS_TEST_MAIN_WITH(QApplication, PrintRtfTest)
#include "print_rtf_test.moc"
