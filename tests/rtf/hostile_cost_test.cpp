// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/reader.h"
#include "support/counted_memory.h"
#include "support/rtf_floods.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::memoryTakenBy;
using orvalis::test::RtfFlood;
using orvalis::test::TakenMemory;

namespace {

constexpr qint64 MemoryPerByte = 40;
constexpr qint64 MemoryGround = qint64(64) << 20;
constexpr qint64 StepsPerByte = 64;

size_t hashOfTabs(const QTextBlockFormat& format) {
    size_t hash = 0;
    for (const QTextOption::Tab& tab : format.tabPositions())
        hash = qHashMulti(hash, tab.position, int(tab.type));
    return hash;
}

/// How often a document that was filled piece by piece has looked at an earlier piece, about: for
/// each run at all formats that differ in their font alone, for each paragraph at all that differ
/// in their tab stops, for each item at all of its list. Looking takes time and no memory.
qint64 stepsOfFilling(const QTextDocument& document) {
    QSet<QStringList> families;
    QSet<size_t> tabs;
    for (const QTextFormat& format : document.allFormats()) {
        if (format.isCharFormat())
            families.insert(format.toCharFormat().fontFamilies().toStringList());
        if (format.isBlockFormat())
            tabs.insert(hashOfTabs(format.toBlockFormat()));
    }
    qint64 steps = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto run = block.begin(); !run.atEnd(); ++run)
            steps += families.size();
        steps += tabs.size() + (block.textList() ? block.textList()->count() : 0);
    }
    return steps;
}

} // namespace

class HostileCostTest : public QObject {
    Q_OBJECT
private slots:
    void whatQtAsksForIsCounted();
    void aFloodCostsInProportionToItsSize_data();
    void aFloodCostsInProportionToItsSize();
    void aLongListGoesOnInFurtherOnes();
    void aLongNumberedListGoesOnWithItsNumber();
    void documentsWithManyFontsAndTabsAreKeptWhole();
};

void HostileCostTest::whatQtAsksForIsCounted() {
    constexpr qint64 Size = 1 << 20;
    const TakenMemory taken = memoryTakenBy([] {
        for (int time = 0; time < 2; ++time)
            QByteArray(Size, 'x').detach();
    });
    if (!test::CountsMemory) {
        QCOMPARE(taken.asked, 0);
        return;
    }
    QVERIFY(taken.asked >= 2 * Size);
    QVERIFY(taken.peak >= Size && taken.peak < 2 * Size);
}

void HostileCostTest::aFloodCostsInProportionToItsSize_data() {
    QTest::addColumn<RtfFlood>("flood");
    for (const RtfFlood& flood : test::rtfFloods())
        QTest::newRow(flood.name) << flood;
}

void HostileCostTest::aFloodCostsInProportionToItsSize() {
    QFETCH(RtfFlood, flood);
    constexpr qsizetype Size = 500'000;
    constexpr int Times = 4;
    constexpr double Leeway = 1.25;
    constexpr qint64 Ground = 64 << 10;
    const QByteArray large = flood.ofSize(Size);
    const QByteArray small = flood.ofSize(Size / Times);
    QTextDocument document;
    readRtf(small, document); // Plugins and tables that are loaded once cost once.
    document.clear();
    const TakenMemory forSmall = memoryTakenBy([&] { readRtf(small, document); });
    document.clear();
    const TakenMemory forLarge = memoryTakenBy([&] { readRtf(large, document); });
    QVERIFY(document.firstBlock().text().startsWith(QStringLiteral("text")));
    const qint64 steps = stepsOfFilling(document);
    QVERIFY2(steps <= StepsPerByte * large.size(), qPrintable(QString::number(steps)));
    if (!test::CountsMemory)
        return;
    QVERIFY2(double(forLarge.asked) <= Leeway * Times * double(forSmall.asked) + Ground,
             qPrintable(QStringLiteral("%1, then %2").arg(forSmall.asked).arg(forLarge.asked)));
    QVERIFY2(forLarge.peak <= MemoryPerByte * large.size() + MemoryGround,
             qPrintable(QString::number(forLarge.peak)));
}

void HostileCostTest::aLongListGoesOnInFurtherOnes() {
    constexpr int Items = 2000;
    QByteArray rtf = "{\\rtf1\\pard{\\pntext\\bullet}{\\*\\pn\\pnlvlblt}";
    for (int i = 0; i < Items; ++i)
        rtf += "x\\par ";
    QTextDocument document;
    QVERIFY(readRtf(rtf + "}", document).ok());
    int longest = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QVERIFY(block.textList());
        QCOMPARE(block.textList()->format().style(), QTextListFormat::ListDisc);
        longest = std::max(longest, block.textList()->count());
    }
    QCOMPARE(document.blockCount(), Items);
    QVERIFY(longest < Items);
}

void HostileCostTest::aLongNumberedListGoesOnWithItsNumber() {
    const auto lists = [](int items) {
        QByteArray rtf = "{\\rtf1\\pard{\\*\\pn\\pnlvlbody\\pnstart3\\pndec{\\pntxta.}}";
        for (int i = 0; i < items; ++i)
            rtf += "x\\par ";
        QTextDocument document;
        readRtf(rtf + "}", document);
        return std::pair(document.firstBlock().textList()->count(),
                         document.lastBlock().textList()->format().intProperty(ListStart));
    };
    QCOMPARE(lists(2000).first, 2000);
    const auto [first, start] = lists(3000);
    QVERIFY(first < 3000);
    QCOMPARE(start, first + 3);
}

void HostileCostTest::documentsWithManyFontsAndTabsAreKeptWhole() {
    // More than any word processor's document has of both.
    constexpr int Fonts = 200;
    QByteArray rtf = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < Fonts; ++i)
        rtf += "{\\f" + QByteArray::number(i) + " Family " + QByteArray::number(i) + ";}";
    rtf += '}';
    for (int i = 0; i < 5000; ++i)
        rtf += "\\pard\\tx" + QByteArray::number(i % Fonts) + "\\f" +
               QByteArray::number(i % Fonts) + " words\\par";
    QTextDocument document;
    QVERIFY(readRtf(rtf + "}", document).ok());
    QCOMPARE(document.blockCount(), 5000);
    const QTextBlock last = document.lastBlock();
    QCOMPARE(last.begin().fragment().charFormat().fontFamilies().toStringList().value(0),
             QStringLiteral("Family %1").arg(4999 % Fonts));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, HostileCostTest)
#include "hostile_cost_test.moc"
