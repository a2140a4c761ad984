// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/format_properties.h"
#include "rtf/reader.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>
#include <ctime>

// A sanitizer's own memory would be measured with the reader's.
#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
#define ORVALIS_MEASURES_MEMORY
#endif

#ifdef ORVALIS_MEASURES_MEMORY
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#endif

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

constexpr qint64 memoryPerByte = 40;
constexpr qint64 memoryGround = qint64(64) << 20;

/// Pieces one after the other; "%" in a piece stands for its number.
QByteArray flood(const QByteArray& head, const QByteArray& piece, qsizetype size) {
    QByteArray rtf = "{\\rtf1" + head + " text ";
    for (int number = 1; rtf.size() < size; ++number)
        rtf += QByteArray(piece).replace('%', QByteArray::number(number));
    return rtf;
}

double secondsOf(const QByteArray& rtf) {
    const std::clock_t start = std::clock();
    QTextDocument document;
    readRtf(rtf, document);
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

#ifdef ORVALIS_MEASURES_MEMORY

qint64 peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

/// The memory that a reading adds, in bytes, measured in a process of its own; -1 when that died or
/// lost the text in front of the flood.
qint64 memoryOf(const QByteArray& rtf) {
    int ends[2];
    if (pipe(ends) != 0)
        return -1;
#ifdef __GLIBC__
    malloc_trim(0); // what earlier readings have left free would hide what this one takes
#endif
    const pid_t child = fork();
    if (child == 0) {
        const qint64 before = peakMemory();
        QTextDocument document;
        readRtf(rtf, document);
        const bool kept = document.firstBlock().text().startsWith(QStringLiteral("text"));
        const qint64 added = kept ? peakMemory() - before : -1;
        const bool told = ::write(ends[1], &added, sizeof added) == sizeof added;
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    qint64 added = -1;
    if (::read(ends[0], &added, sizeof added) != sizeof added)
        added = -1;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return added;
}

#endif

} // namespace

class HostileCostTest : public QObject {
    Q_OBJECT
private slots:
    void aFloodCostsLinearTimeAndBoundedMemory_data();
    void aFloodCostsLinearTimeAndBoundedMemory();
    void aLongListGoesOnInFurtherOnes();
    void aLongNumberedListGoesOnWithItsNumber();
    void documentsWithManyFontsAndTabsAreKeptWhole();
};

void HostileCostTest::aFloodCostsLinearTimeAndBoundedMemory_data() {
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("piece");
    const auto row = [](const char* name, const QByteArray& piece, const QByteArray& head = {}) {
        QTest::newRow(name) << head << piece;
    };
    row("opening braces", "{");
    row("closing braces", "}");
    row("groups within groups", "{\\b\\tx99 a");
    row("ignorable groups within groups", "{\\*\\nobody");
    row("empty paragraphs", "\\par");
    row("one-letter runs", "\\b a\\b0 b");
    row("sizes", "\\fs% a");
    row("bullets", "\\pard{\\pntext\\bullet}x\\par");
    row("numbers that stay", "\\pard{\\pntext 7.}x\\par");
    row("numbers that go on", "\\pard{\\pntext (%)}x\\par\\pard y\\par");
    row("lists by their identities", "\\pard{\\*\\pn\\pnlvlbody\\orvlist%}x\\par");
    row("fonts", "{\\fonttbl{\\f% A%;}}\\f% x");
    row("a font for each paragraph", "{\\fonttbl{\\f% A%;}}\\f% x\\par");
    row("tab stops", "\\pard\\tx% x\\par");
    row("colours", "{\\colortbl;\\red%;}\\cf1 x");
    row("links", "{\\field{\\*\\fldinst HYPERLINK u%}{\\fldrslt x}}");
    row("list tables", "{\\*\\listtable{\\list{\\listlevel}\\listid%}}{\\*\\listoverridetable"
                       "\\listid%\\ls%}\\ls% x\\par");
    row("pictures of one pixel", "{\\pict\\wbitmap0\\picw1\\pich1 %000000}");
    row("pictures that claim", "{\\pict\\pngblip\\picwgoal99999\\pichgoal99999 89504e470d0a1a0a"
                               "0000000d49484452000186a0000186a00802000000}");
    row("pictures that nothing can draw", "{\\pict\\dibitmap0\\picwgoal99999\\pichgoal99999 %00}");
    row("characters of two bytes", "\\'83\\'56", "\\ansicpg932");
    row("characters by number", "\\u1078?");
    row("cells", "\\cell");
}

void HostileCostTest::aFloodCostsLinearTimeAndBoundedMemory() {
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, piece);
    constexpr qsizetype size = 500'000;
    constexpr int times = 4;
    const QByteArray large = flood(head, piece, size);
    const double small = secondsOf(flood(head, piece, size / times));
    const double time = secondsOf(large);
    QVERIFY2(time < small * times * 2.5 + 0.1,
             qPrintable(QStringLiteral("%1 s, then %2 s").arg(small).arg(time)));
#ifdef ORVALIS_MEASURES_MEMORY
    const qint64 memory = memoryOf(large);
    QVERIFY2(memory >= 0 && memory <= memoryPerByte * large.size() + memoryGround,
             qPrintable(QStringLiteral("%1 bytes").arg(memory)));
#endif
}

void HostileCostTest::aLongListGoesOnInFurtherOnes() {
    constexpr int items = 2000;
    QByteArray rtf = "{\\rtf1\\pard{\\pntext\\bullet}{\\*\\pn\\pnlvlblt}";
    for (int i = 0; i < items; ++i)
        rtf += "x\\par ";
    QTextDocument document;
    QVERIFY(readRtf(rtf + "}", document).ok());
    int longest = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QVERIFY(block.textList());
        QCOMPARE(block.textList()->format().style(), QTextListFormat::ListDisc);
        longest = std::max(longest, block.textList()->count());
    }
    QCOMPARE(document.blockCount(), items);
    QVERIFY(longest < items);
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
    constexpr int fonts = 200;
    QByteArray rtf = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < fonts; ++i)
        rtf += "{\\f" + QByteArray::number(i) + " Family " + QByteArray::number(i) + ";}";
    rtf += '}';
    for (int i = 0; i < 5000; ++i)
        rtf += "\\pard\\tx" + QByteArray::number(i % fonts) + "\\f" +
               QByteArray::number(i % fonts) + " words\\par";
    QTextDocument document;
    QVERIFY(readRtf(rtf + "}", document).ok());
    QCOMPARE(document.blockCount(), 5000);
    const QTextBlock last = document.lastBlock();
    QCOMPARE(last.begin().fragment().charFormat().fontFamilies().toStringList().value(0),
             QStringLiteral("Family %1").arg(4999 % fonts));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, HostileCostTest)
#include "hostile_cost_test.moc"
