// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/printer.h"

#include "support/failure_of.h"
#include "support/recording_printer.h"
#include "support/test_main.h"

#include <QApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// What a program of this name says of a file.
QString told(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return program + u" failed"_s;
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString wordsOn(const QString& pdf, int page) {
    const QString number = QString::number(page);
    return told(u"pdftotext"_s, {u"-f"_s, number, u"-l"_s, number, pdf, u"-"_s}).simplified();
}

int pagesOf(const QString& pdf) {
    const QString all = told(u"pdfinfo"_s, {pdf});
    return all.mid(all.indexOf(u"Pages:"_s) + 6).section(u'\n', 0, 0).trimmed().toInt();
}

constexpr auto Refused = ErrorNumber::PrinterError;

} // namespace

class PrinterTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void lengthsGoFromPixelsToTwipsAndBack();
    void theSheetIsMeasuredInTwips();
    void theOffsetsAreTheMarginsThatThePrinterCannotReach();

    void aBlankBeginsAJobAndLeavesNoInk();
    void eachNewPageIsAPageOfTheJob();
    void printedLinesFollowOneAnother();
    void theOriginIsTheCornerOfAllThatThePrinterReaches();
    void aJobBeginsAnewBehindTheEndOfTheLast();
    void aJobLeftUnfinishedIsSentOffBeforeThePrinterChanges();
    void aJobLeftUnfinishedIsSentOffAtTheEnd();
    void theEndOfNoJobIsNothing();
    void withoutAPrinterAJobFails();
    void aFileThatCannotBeWrittenFails();

private:
    void printsTo(DesktopPrinter& printer, const QString& pdf);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_pdf;
};

void PrinterTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    m_pdf = m_folder->filePath(u"job.pdf"_s);
}

void PrinterTest::printsTo(DesktopPrinter& printer, const QString& pdf) {
    printer.device().setOutputFileName(pdf);
    printer.device().setOutputFormat(QPrinter::PdfFormat);
    printer.device().setPageSize(QPageSize(QPageSize::Letter));
}

void PrinterTest::lengthsGoFromPixelsToTwipsAndBack() {
    RecordingPrinter printer;
    printer.paper.resolution = QSize(600, 300);
    QCOMPARE(printer.ScaleX(150, ScaleMode::Pixels, ScaleMode::Twips), 360.0);
    QCOMPARE(printer.ScaleY(150, ScaleMode::Pixels, ScaleMode::Twips), 720.0);
    QCOMPARE(printer.ScaleX(1440, ScaleMode::Twips, ScaleMode::Pixels), 600.0);
    QCOMPARE(printer.ScaleY(1440, ScaleMode::Twips, ScaleMode::Pixels), 300.0);
    QCOMPARE(printer.ScaleX(7.5, ScaleMode::Twips, ScaleMode::Twips), 7.5);
}

void PrinterTest::theSheetIsMeasuredInTwips() {
    RecordingPrinter printer;
    printer.paper = {.paper = QSize(5100, 3300), // 8.5 by 11 inches
                     .margins = QMargins(150, 75, 300, 150),
                     .resolution = QSize(600, 300)};
    QCOMPARE(printer.Width(), 12240);
    QCOMPARE(printer.Height(), 15840);
    QCOMPARE(printer.ScaleWidth(), 12240 - 360 - 720);
    QCOMPARE(printer.ScaleHeight(), 15840 - 360 - 720);
}

void PrinterTest::theOffsetsAreTheMarginsThatThePrinterCannotReach() {
    RecordingPrinter printer;
    printer.paper.margins = QMargins(11, 22, 33, 44);
    QCOMPARE(printer.GetDeviceCaps(112), 11);
    QCOMPARE(printer.GetDeviceCaps(113), 22);
    QCOMPARE(printer.GetDeviceCaps(111), 0);
}

void PrinterTest::aBlankBeginsAJobAndLeavesNoInk() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    QVERIFY(!printer.hDC());
    printer.Print(u" "_s);
    QVERIFY(printer.hDC());
    printer.EndDoc();
    QVERIFY(!printer.hDC());
    QCOMPARE(pagesOf(m_pdf), 1);
    QCOMPARE(wordsOn(m_pdf, 1), QString());

    const QString other = m_folder->filePath(u"other.pdf"_s);
    printsTo(printer, other);
    printer.Print(QString());
    QVERIFY(printer.hDC());
    printer.EndDoc();
    QCOMPARE(pagesOf(other), 1);
}

void PrinterTest::eachNewPageIsAPageOfTheJob() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    printer.Print(u"one"_s);
    printer.NewPage();
    printer.Print(u"two"_s);
    printer.NewPage();
    printer.hDC()->drawText(100, 2000, u"three"_s);
    printer.EndDoc();
    QCOMPARE(pagesOf(m_pdf), 3);
    QCOMPARE(wordsOn(m_pdf, 1), u"one"_s);
    QCOMPARE(wordsOn(m_pdf, 2), u"two"_s);
    QCOMPARE(wordsOn(m_pdf, 3), u"three"_s);
}

void PrinterTest::printedLinesFollowOneAnother() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    printer.Print(u"above"_s);
    printer.Print(u"below"_s);
    printer.EndDoc();
    QCOMPARE(wordsOn(m_pdf, 1), u"above below"_s);
    QCOMPARE(told(u"pdftotext"_s, {u"-layout"_s, m_pdf, u"-"_s}).trimmed().count(u'\n'), 1);
}

/// The margins of a page set-up would come on top of those of the document.
void PrinterTest::theOriginIsTheCornerOfAllThatThePrinterReaches() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    printer.device().setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    const Sheet before = printer.sheet();
    printer.Print(u" "_s);
    const Sheet sheet = printer.sheet();
    QCOMPARE(sheet.paper, before.paper);
    QCOMPARE(sheet.margins, before.margins);
    QCOMPARE(printer.Width(), 12240);
    QCOMPARE(printer.Height(), 15840);
    QCOMPARE(printer.ScaleWidth(), 12240); // a file has no edge out of reach
    const QPaintDevice& page = *printer.hDC()->device();
    QCOMPARE(QSize(page.width(), page.height()), sheet.paper);
    QCOMPARE(QSize(page.logicalDpiX(), page.logicalDpiY()), sheet.resolution);
    QCOMPARE(printer.hDC()->combinedTransform().map(QPointF(0, 0)), QPointF(0, 0));
    printer.EndDoc();
}

void PrinterTest::aJobBeginsAnewBehindTheEndOfTheLast() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    printer.Print(u"one"_s);
    printer.EndDoc();
    const QString other = m_folder->filePath(u"other.pdf"_s);
    printsTo(printer, other);
    printer.Print(u"two"_s);
    printer.EndDoc();
    QCOMPARE(wordsOn(m_pdf, 1), u"one"_s);
    QCOMPARE(wordsOn(other, 1), u"two"_s);
}

void PrinterTest::aJobLeftUnfinishedIsSentOffBeforeThePrinterChanges() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    printer.Print(u"half"_s);
    printsTo(printer, m_folder->filePath(u"other.pdf"_s));
    QVERIFY(!printer.hDC());
    QCOMPARE(wordsOn(m_pdf, 1), u"half"_s);
}

void PrinterTest::aJobLeftUnfinishedIsSentOffAtTheEnd() {
    {
        DesktopPrinter printer;
        printsTo(printer, m_pdf);
        printer.Print(u"half"_s);
    }
    QCOMPARE(wordsOn(m_pdf, 1), u"half"_s);
}

void PrinterTest::theEndOfNoJobIsNothing() {
    DesktopPrinter printer;
    printsTo(printer, m_pdf);
    printer.EndDoc();
    QVERIFY(!QFile::exists(m_pdf));
}

void PrinterTest::withoutAPrinterAJobFails() {
    DesktopPrinter printer;
    printer.device().setOutputFileName(QString());
    printer.device().setOutputFormat(QPrinter::PdfFormat); // what Qt falls back on
    QCOMPARE(failureOf([&] { printer.Print(u" "_s); }), Refused);
    QVERIFY(!printer.hDC());
    QCOMPARE(failureOf([&] { printer.NewPage(); }), Refused);
}

void PrinterTest::aFileThatCannotBeWrittenFails() {
    DesktopPrinter printer;
    printsTo(printer, m_folder->filePath(u"no such folder/job.pdf"_s));
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
    QCOMPARE(failureOf([&] { printer.Print(u" "_s); }), Refused);
    QVERIFY(!printer.hDC());
}

ORVALIS_TEST_MAIN_WITH(QApplication, PrinterTest)
#include "printer_test.moc"
