// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/format_range.h"
#include "controls/rich_text_box.h"
#include "support/test_main.h"

#include <QApplication>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int DotsPerMeter = 3780; // 96 to the inch

void show(RichTextBox& box, const QByteArray& body) {
    box.setFixedSize(400, 60);
    box.SetTextRTF("{\\rtf1{\\fonttbl{\\f0 Liberation Sans;}}\\f0\\fs20" + body + "}");
    box.show();
}

/// Whether anything is drawn in the first line between two places, in twips from the margin.
bool isInked(RichTextBox& box, int from, int to) {
    const QImage picture = box.viewport()->grab().toImage();
    const int margin = int(box.document()->documentMargin());
    for (int x = margin + from / 15; x < margin + to / 15; ++x)
        for (int y = 2; y < 24; ++y)
            if (picture.pixel(x, y) != picture.pixel(390, 50))
                return true;
    return false;
}

/// The first inked column of a printed page, in twips from the left edge of the paper.
/// \param times how much finer the paper is than the screen.
int printedFrom(RichTextBox& box, int times = 1) {
    QImage sheet(576 * times, 100 * times, QImage::Format_RGB32);
    sheet.setDotsPerMeterX(DotsPerMeter * times);
    sheet.setDotsPerMeterY(DotsPerMeter * times);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    RangeFormatter(box).FormatPage({&painter, &sheet, QRectF(1440, 720, 6000, 3000), 0, -1});
    for (int x = 0; x < sheet.width(); ++x)
        for (int y = 0; y < sheet.height(); ++y)
            if (sheet.pixel(x, y) != qRgb(255, 255, 255))
                return x * 15 / times;
    return -1;
}

} // namespace

class TabLeadersTest : public QObject {
    Q_OBJECT
private slots:
    void theSpaceOfATabIsFilled_data();
    void theSpaceOfATabIsFilled();
    void anIndentThatIsChangedLeavesTheStopsWhereTheyAre();
    void whatIsLeftOfTheMarginIsSeenAndPrintedThere();
    void marginsArePrintedInTheSizeOfThePaper_data();
    void marginsArePrintedInTheSizeOfThePaper();
    void labelsAreDrawnWhereTheListHangsThem();
};

void TabLeadersTest::theSpaceOfATabIsFilled_data() {
    QTest::addColumn<QByteArray>("stops");
    QTest::addColumn<bool>("filled");
    QTest::newRow("plain stop") << QByteArray("\\tx4000") << false;
    QTest::newRow("leader of another stop") << QByteArray("\\tx4000\\tldot\\tx5000") << false;
    for (const char* leader : {"\\tldot", "\\tlmdot", "\\tlhyph", "\\tlul", "\\tlth", "\\tleq"})
        QTest::newRow(leader) << leader + QByteArray("\\tx4000") << true;
    QTest::newRow("right stop") << QByteArray("\\tqr\\tldot\\tx4800") << true;
}

void TabLeadersTest::theSpaceOfATabIsFilled() {
    QFETCH(QByteArray, stops);
    QFETCH(bool, filled);
    RichTextBox box;
    show(box, "\\pard" + stops + " a\\tab b\\par");
    QCOMPARE(isInked(box, 1000, 3600), filled);
    QVERIFY(isInked(box, 4000, 5000));
}

void TabLeadersTest::anIndentThatIsChangedLeavesTheStopsWhereTheyAre() {
    RichTextBox box;
    show(box, "\\pard\\tx3000 a\\tab b\\par");
    const auto place = [&] {
        const QTextLayout& layout = *box.document()->firstBlock().layout();
        return qRound(layout.position().x() + layout.lineAt(0).cursorToX(2));
    };
    const int before = place();
    box.SetSelIndent(500);
    QCOMPARE(place(), before);
    QVERIFY(box.TextRTF().contains("\\li500\\tx3000"));
    box.SetSelBullet(true);
    QCOMPARE(place(), before);
    QVERIFY(box.TextRTF().contains("\\fi-360\\li860\\tx3000"));
    box.SetSelBullet(false);
    QCOMPARE(place(), before);
    QVERIFY(box.TextRTF().contains("\\li500\\tx3000"));
}

void TabLeadersTest::whatIsLeftOfTheMarginIsSeenAndPrintedThere() {
    RichTextBox box;
    show(box, "\\pard\\fi-600 HHHH\\par");
    QVERIFY(isInked(box, 0, 150));
    QVERIFY(qAbs(printedFrom(box) - (1440 - 600)) <= 60);
    // Paper without room for it.
    show(box, "\\pard\\fi-1500 HHHH\\par");
    QVERIFY(qAbs(printedFrom(box) - 1440) <= 60);
}

void TabLeadersTest::marginsArePrintedInTheSizeOfThePaper_data() {
    QTest::addColumn<QByteArray>("shape");
    QTest::addColumn<int>("left");
    QTest::newRow("indent") << QByteArray("\\li720") << 720;
    QTest::newRow("first line") << QByteArray("\\fi1000") << 1000;
    QTest::newRow("right indent") << QByteArray("\\qr\\ri1440") << 6000 - 1440;
    QTest::newRow("label of a list")
        << QByteArray("{\\*\\pn\\pnlvlbody\\pndec{\\pntxta.}}\\fi-360\\li2000") << 1640;
}

/// On paper with finer dots than the screen's.
void TabLeadersTest::marginsArePrintedInTheSizeOfThePaper() {
    QFETCH(QByteArray, shape);
    QFETCH(int, left);
    RichTextBox box;
    show(box, "\\pard" + shape + " I\\par");
    QVERIFY(qAbs(printedFrom(box, 4) - (1440 + left)) <= 110);
}

void TabLeadersTest::labelsAreDrawnWhereTheListHangsThem() {
    RichTextBox box;
    const QByteArray numbers =
        "\\pard{\\*\\pn\\pnlvlbody\\pndec{\\pntxta.}}\\fi-1000\\li2000 a\\par";
    show(box, numbers);
    QVERIFY(!isInked(box, 0, 990));
    QVERIFY(isInked(box, 1000, 1200));
    QVERIFY(!isInked(box, 1400, 1990));
    QVERIFY(isInked(box, 2000, 2200));
    show(box, QByteArray(numbers).replace("\\pndec", "\\pndec\\pnqr"));
    QVERIFY(isInked(box, 800, 990));
    QVERIFY(!isInked(box, 1020, 1990));
    show(box, "\\pard{\\*\\pn\\pnlvlblt{\\pntxtb\\'b7}}\\fi-1000\\li2000 a\\par");
    QVERIFY(isInked(box, 1000, 1200));
    QVERIFY(!isInked(box, 1200, 1990));
}

ORVALIS_TEST_MAIN_WITH(QApplication, TabLeadersTest)
#include "tab_leaders_test.moc"
