// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/format_range.h"
#include "controls/rich_text_box.h"
#include "controls/selecting.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextList>

#include <algorithm>
#include <cmath>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// A list of items of one look.
/// \param kind of its numbers and the texts around them, as \pn tells them.
/// \param look control words of each item.
QByteArray listFrom(int start, int items, const QByteArray& kind, const QByteArray& look = {}) {
    QByteArray rtf = "{\\rtf1{\\fonttbl{\\f0 Liberation Sans;}}{\\colortbl;\\red255;}"
                     "\\pard{\\*\\pn\\pnlvlbody\\pnstart" +
                     QByteArray::number(start) + kind + "}\\fi-360\\li720\\f0\\fs20" + look;
    for (int i = 0; i < items; ++i)
        rtf += " item\\par";
    return rtf + '}';
}

void show(RichTextBox& box, const QByteArray& rtf) {
    box.resize(200, 500);
    box.SetTextRTF(QString::fromLatin1(rtf));
    box.show();
}

/// The part of a picture of the box in which an item stands, across the whole box.
QImage itemPicture(RichTextBox& box, int item) {
    const QTextBlock block = box.document()->findBlockByNumber(item);
    const QRectF bounds = box.document()->documentLayout()->blockBoundingRect(block);
    const int top = int(bounds.top()) - box.verticalScrollBar()->value();
    return box.viewport()->grab().toImage().copy(0, top, 200, int(bounds.height()));
}

QImage printedItem(RichTextBox& box, int item) {
    constexpr int DotsPerMeter = 3780; // 96 to the inch
    QImage sheet(576, 576, QImage::Format_RGB32);
    sheet.setDotsPerMeterX(DotsPerMeter);
    sheet.setDotsPerMeterY(DotsPerMeter);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    RangeFormatter(box).FormatPage({&painter, &sheet, QRectF(720, 720, 7200, 7200), 6 * item, -1});
    return sheet.copy(0, 48, 576, 16);
}

/// Whether anything is drawn left of where the text of an item begins.
bool hasLabel(RichTextBox& box, int item) {
    const QImage picture = itemPicture(box, item);
    const QTextLayout& layout = *box.document()->findBlockByNumber(item).layout();
    const int textLeft = int(layout.position().x() + layout.lineAt(0).naturalTextRect().left());
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < textLeft; ++x)
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return true;
    return false;
}

} // namespace

class ListNumbersTest : public QObject {
    Q_OBJECT
private slots:
    void aListThatBeginsLaterLooksLikeTheRestOfOneThatBeginsAtOne_data();
    void aListThatBeginsLaterLooksLikeTheRestOfOneThatBeginsAtOne();
    void selectedNumbersAreLitLikeTheDocumentsOwn();
    void numbersStayWithTheirItemsWhenTheTextIsScrolled();
    void numbersArePrinted();
    void aNumberStandsWhereItsLineBegins_data();
    void aNumberStandsWhereItsLineBegins();
    void theDotOfANumberStandsBehindItWhicheverWayItRuns();
    void anItemThatIsAddedTakesTheNextNumber();
    void anItemThatBecomesABulletShowsIt();
    void bulletsOfAPageThatIsPastedBehindAreShown();
    void numbersGoOnWhereALongListIsCutInTwo();
};

void ListNumbersTest::aListThatBeginsLaterLooksLikeTheRestOfOneThatBeginsAtOne_data() {
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("look");
    QTest::newRow("plain") << QByteArray("\\pndec{\\pntxta.}") << QByteArray();
    QTest::newRow("letters") << QByteArray("\\pnucltr{\\pntxta.}") << QByteArray();
    QTest::newRow("roman numbers") << QByteArray("\\pnlcrm{\\pntxtb(}{\\pntxta)}") << QByteArray();
    QTest::newRow("large and bold") << QByteArray("\\pndec{\\pntxta.}") << QByteArray("\\b\\fs40");
    QTest::newRow("red") << QByteArray("\\pndec{\\pntxta.}") << QByteArray("\\cf1");
    QTest::newRow("from right to left")
        << QByteArray("\\pndec{\\pntxta.}") << QByteArray("\\rtlpar\\qr");
}

void ListNumbersTest::aListThatBeginsLaterLooksLikeTheRestOfOneThatBeginsAtOne() {
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, look);
    RichTextBox whole;
    show(whole, listFrom(1, 9, kind, look));
    RichTextBox rest;
    show(rest, listFrom(7, 3, kind, look));
    for (int item = 0; item < 3; ++item) {
        const QImage expected = itemPicture(whole, item + 6);
        QVERIFY(expected != itemPicture(whole, 0));
        QCOMPARE(itemPicture(rest, item), expected);
    }
}

void ListNumbersTest::selectedNumbersAreLitLikeTheDocumentsOwn() {
    RichTextBox whole;
    show(whole, listFrom(1, 4, "\\pndec{\\pntxta.}"));
    RichTextBox rest;
    show(rest, listFrom(2, 3, "\\pndec{\\pntxta.}"));
    // A number is lit where the selection comes in from the paragraph before.
    const QImage unlit = itemPicture(rest, 1);
    select(whole, 6, 12);
    select(rest, 0, 12);
    // The document's own boxes of light end between two pixels.
    const QRect inside(0, 1, 200, unlit.height() - 2);
    QCOMPARE(itemPicture(rest, 0).copy(inside), itemPicture(whole, 1).copy(inside));
    QCOMPARE(itemPicture(rest, 1).copy(inside), itemPicture(whole, 2).copy(inside));
    QVERIFY(itemPicture(rest, 1).copy(0, 0, 44, 12) != unlit.copy(0, 0, 44, 12));
}

void ListNumbersTest::numbersStayWithTheirItemsWhenTheTextIsScrolled() {
    RichTextBox box;
    show(box, listFrom(7, 100, "\\pndec{\\pntxta.}"));
    const QImage atRest = itemPicture(box, 10);
    QVERIFY(hasLabel(box, 10));
    box.verticalScrollBar()->setValue(37);
    QCOMPARE(itemPicture(box, 10), atRest);
}

void ListNumbersTest::numbersArePrinted() {
    RichTextBox whole;
    show(whole, listFrom(1, 9, "\\pndec{\\pntxta.}"));
    RichTextBox rest;
    show(rest, listFrom(7, 3, "\\pndec{\\pntxta.}"));
    const QImage expected = printedItem(whole, 7);
    QVERIFY(expected != printedItem(whole, 0));
    QCOMPARE(printedItem(rest, 1), expected);
}

void ListNumbersTest::aNumberStandsWhereItsLineBegins_data() {
    QTest::addColumn<QByteArray>("look");
    QTest::addColumn<bool>("onTheRight");
    QTest::newRow("from left to right") << QByteArray() << false;
    QTest::newRow("from right to left") << QByteArray("\\rtlpar\\qr\\li0\\ri720") << true;
}

void ListNumbersTest::aNumberStandsWhereItsLineBegins() {
    QFETCH(QByteArray, look);
    QFETCH(bool, onTheRight);
    constexpr int Height = 12; // within the line
    RichTextBox box;
    show(box, listFrom(1, 1, "\\pndec{\\pntxta.}", look));
    const QImage picture = itemPicture(box, 0).copy(0, 0, box.viewport()->width(), Height);
    const QTextBlock block = box.document()->firstBlock();
    const QRectF text =
        block.layout()->lineAt(0).naturalTextRect().translated(block.layout()->position());
    constexpr int Hanging = 24; // pixels
    int first = picture.width();
    int last = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != picture.pixel(0, 0)) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    constexpr double Bearing = 4;
    const double outer = onTheRight ? last - text.right() : text.left() - first;
    const double inner = onTheRight ? first - text.left() : text.right() - last;
    QVERIFY2(std::abs(outer - Hanging) <= Bearing, QByteArray::number(outer));
    QVERIFY2(std::abs(inner) <= Bearing, QByteArray::number(inner));
}

void ListNumbersTest::theDotOfANumberStandsBehindItWhicheverWayItRuns() {
    RichTextBox box;
    show(box, listFrom(8, 1, "\\pndec{\\pntxta.}", "\\rtlpar\\qr\\li0\\ri720\\fs40"));
    const QImage picture = itemPicture(box, 0).copy(0, 0, box.viewport()->width(), 32);
    const QTextLayout& layout = *box.document()->firstBlock().layout();
    const int textRight = int(layout.position().x() + layout.lineAt(0).naturalTextRect().right());
    const auto highestInk = [&](int x) {
        for (int y = 0; y < picture.height(); ++y)
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return y;
        return picture.height();
    };
    int highest = picture.height(); // of the whole label
    int ofTheFirst = picture.height();
    for (int x = picture.width() - 1; x > textRight + 1; --x)
        if (const int ink = highestInk(x); ink < picture.height()) {
            highest = std::min(highest, ink);
            ofTheFirst = ink;
        }
    QVERIFY2(ofTheFirst > highest + 6, QByteArray::number(ofTheFirst));
}

void ListNumbersTest::anItemThatIsAddedTakesTheNextNumber() {
    RichTextBox whole;
    show(whole, listFrom(7, 2, "\\pndec{\\pntxta.}"));
    RichTextBox grown;
    show(grown, listFrom(7, 1, "\\pndec{\\pntxta.}"));
    grown.SetSelStart(4);
    QTest::keyClick(&grown, Qt::Key_Return);
    QTest::keyClicks(&grown, u"item"_s);
    whole.SetSelStart(9);
    QCOMPARE(itemPicture(grown, 1).copy(0, 0, 44, 12), itemPicture(whole, 1).copy(0, 0, 44, 12));
}

void ListNumbersTest::anItemThatBecomesABulletShowsIt() {
    RichTextBox box;
    show(box, listFrom(7, 1, "\\pndec{\\pntxta.}"));
    const QImage number = itemPicture(box, 0);
    box.SetSelBullet(true);
    QVERIFY(hasLabel(box, 0));
    QVERIFY(itemPicture(box, 0) != number);
    box.Undo();
    QCOMPARE(itemPicture(box, 0), number);
}

void ListNumbersTest::bulletsOfAPageThatIsPastedBehindAreShown() {
    RichTextBox box;
    show(box, listFrom(7, 1, "\\pndec{\\pntxta.}"));
    box.SetSelStart(4);
    auto* page = new QMimeData;
    page->setHtml(u"<p>text<ul><li>one<li>two</ul>"_s);
    QApplication::clipboard()->setMimeData(page);
    box.Paste();
    QTextBlock last = box.document()->lastBlock();
    while (!last.textList())
        last = last.previous();
    QCOMPARE(last.text(), u"two"_s);
    QVERIFY(hasLabel(box, last.blockNumber()));
}

void ListNumbersTest::numbersGoOnWhereALongListIsCutInTwo() {
    RichTextBox box;
    show(box, listFrom(1, 2100, "\\pndec{\\pntxta.}"));
    const QTextBlock last = box.document()->lastBlock();
    QVERIFY(last.textList() != box.document()->firstBlock().textList());
    RichTextBox single;
    show(single, listFrom(2100, 1, "\\pndec{\\pntxta.}"));
    box.SetSelStart(int(box.Text().size()));
    QVERIFY(hasLabel(box, 2099));
    QCOMPARE(itemPicture(box, 2099).copy(0, 0, 80, 12), itemPicture(single, 0).copy(0, 0, 80, 12));
}

ORVALIS_TEST_MAIN_WITH(QApplication, ListNumbersTest)
#include "list_numbers_test.moc"
