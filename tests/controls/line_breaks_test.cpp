// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/line_breaks.h"

#include "support/test_main.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <iterator>

using namespace orvalis;

namespace {

/// The same, counted anew each time.
struct PlainBreaks {
    std::vector<int> places;

    void replace(int from, int removed, int added, const std::vector<int>& found) {
        std::vector<int> after;
        for (const int place : places)
            if (place < from)
                after.push_back(place);
        after.insert(after.end(), found.begin(), found.end());
        for (const int place : places)
            if (place >= from + removed)
                after.push_back(place + added - removed);
        places = after;
    }
    int before(int position) const {
        return int(std::count_if(
            places.begin(), places.end(), [&](int place) { return place < position; }));
    }
};

} // namespace

class LineBreaksTest : public QObject {
    Q_OBJECT
private slots:
    void thereAreNoneAtFirst();
    void editsMoveThoseBehindThem();
    void anEditTakesThoseInsideIt();
    void clearingForgetsAll();
    void randomEditsCountAsAPlainListDoes_data();
    void randomEditsCountAsAPlainListDoes();
};

void LineBreaksTest::thereAreNoneAtFirst() {
    const LineBreaks breaks;
    QCOMPARE(breaks.count(), 0);
    QCOMPARE(breaks.before(100), 0);
}

void LineBreaksTest::editsMoveThoseBehindThem() {
    LineBreaks breaks;
    breaks.replace(0, 0, 30, {5, 10, 20});
    breaks.replace(7, 0, 3, {}); // 5, 13, 23
    QCOMPARE(breaks.before(13), 1);
    QCOMPARE(breaks.before(14), 2);
    QCOMPARE(breaks.before(23), 2);
    QCOMPARE(breaks.before(24), 3);
    breaks.replace(0, 4, 0, {}); // 1, 9, 19
    QCOMPARE(breaks.before(1), 0);
    QCOMPARE(breaks.before(2), 1);
    QCOMPARE(breaks.before(20), 3);
}

void LineBreaksTest::anEditTakesThoseInsideIt() {
    LineBreaks breaks;
    breaks.replace(0, 0, 30, {5, 10, 20});
    breaks.replace(5, 6, 2, {6}); // 6, 16
    QCOMPARE(breaks.count(), 2);
    QCOMPARE(breaks.before(7), 1);
    QCOMPARE(breaks.before(16), 1);
    QCOMPARE(breaks.before(17), 2);
}

void LineBreaksTest::clearingForgetsAll() {
    LineBreaks breaks;
    breaks.replace(0, 0, 30, {5, 10, 20});
    breaks.replace(7, 0, 3, {});
    breaks.clear();
    QCOMPARE(breaks.count(), 0);
    breaks.replace(0, 0, 9, {4});
    QCOMPARE(breaks.before(4), 0);
    QCOMPARE(breaks.before(5), 1);
}

void LineBreaksTest::randomEditsCountAsAPlainListDoes_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
}

void LineBreaksTest::randomEditsCountAsAPlainListDoes() {
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    LineBreaks breaks;
    PlainBreaks plain;
    int length = 0;
    for (int step = 0; step < 200; ++step) {
        const int from = random.bounded(length + 1);
        const int removed = random.bounded(std::min(length - from, 12) + 1);
        const int added = random.bounded(10);
        std::vector<int> found;
        for (int at = 0; at < added; ++at)
            if (random.bounded(3) == 0)
                found.push_back(from + at);
        breaks.replace(from, removed, added, found);
        plain.replace(from, removed, added, found);
        length += added - removed;
        QCOMPARE(breaks.count(), int(plain.places.size()));
        for (int position = 0; position <= length + 1; ++position)
            QCOMPARE(breaks.before(position), plain.before(position));
    }
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, LineBreaksTest)
#include "line_breaks_test.moc"
