// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_sort.h"

#include "address/address_book.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <numeric>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

namespace {

/// The exchange sort, step by step: the indexes of the keys in the order that it leaves.
std::vector<int> stepByStep(QStringList keys) {
    std::vector<int> order(static_cast<std::size_t>(keys.size()));
    std::iota(order.begin(), order.end(), 0);
    for (qsizetype i = 0; i + 1 < keys.size(); ++i)
        for (qsizetype j = i; j < keys.size(); ++j)
            if (keys[i].compare(keys[j], Qt::CaseSensitive) > 0) {
                keys.swapItemsAt(i, j);
                std::swap(order[static_cast<std::size_t>(i)], order[static_cast<std::size_t>(j)]);
            }
    return order;
}

std::vector<int> orderOf(const QStringList& keys) {
    const std::vector<QStringView> views(keys.begin(), keys.end());
    return exchangeOrder(views);
}

QStringList randomKeys(QRandomGenerator& random, int count, int different) {
    QStringList keys;
    for (int i = 0; i < count; ++i)
        keys << QString::number(random.bounded(different));
    return keys;
}

} // namespace

class AddressSortTest : public QObject {
    Q_OBJECT
private slots:
    void theOrderIsThatOfTheExchangeSortForRandomKeys();
    void theOrderIsThatOfTheExchangeSortForEveryShortRow();
    void theOrderIsThatOfTheExchangeSortForLongRows_data();
    void theOrderIsThatOfTheExchangeSortForLongRows();
    void aSwapCarriesAnElementPastItsEquals();
    void noKeysAndOneKeyStay();
    void capitalsStandBeforeSmallLetters();
    void keysAreComparedByCharacterCode();
    void wholeRecordsMove();
    void spareRecordsStayWhereTheyAre();
    void swappingExchangesWholeRecords();
    void swappingOutsideTheArrayFails();
};

void AddressSortTest::theOrderIsThatOfTheExchangeSortForRandomKeys() {
    QRandomGenerator random(20260512);
    for (int round = 0; round < 3000; ++round) {
        const QStringList keys = randomKeys(random, random.bounded(2, 40), random.bounded(1, 12));
        QCOMPARE(orderOf(keys), stepByStep(keys));
    }
}

void AddressSortTest::theOrderIsThatOfTheExchangeSortForEveryShortRow() {
    constexpr int Length = 6;
    constexpr int Keys = 4;
    for (int number = 0; number < 4096; ++number) {
        QStringList keys;
        for (int i = 0, rest = number; i < Length; ++i, rest /= Keys)
            keys << QString::number(rest % Keys);
        QCOMPARE(orderOf(keys), stepByStep(keys));
    }
}

void AddressSortTest::theOrderIsThatOfTheExchangeSortForLongRows_data() {
    QTest::addColumn<QStringList>("keys");
    constexpr int Count = 1500;
    QRandomGenerator random(7);
    QStringList ascending;
    for (int i = 0; i < Count; ++i)
        ascending << u"%1"_s.arg(i / 3, 6, 10, QChar(u'0'));
    QStringList descending = ascending;
    std::reverse(descending.begin(), descending.end());
    QTest::newRow("in order") << ascending;
    QTest::newRow("in order but for the last") << ascending + randomKeys(random, 5, 3);
    QTest::newRow("in reverse") << descending;
    QTest::newRow("all the same") << QStringList(Count, u"x"_s);
    QTest::newRow("two keys") << randomKeys(random, Count, 2);
    QTest::newRow("many keys") << randomKeys(random, Count, 100000);
}

void AddressSortTest::theOrderIsThatOfTheExchangeSortForLongRows() {
    QFETCH(QStringList, keys);
    QCOMPARE(orderOf(keys), stepByStep(keys));
}

void AddressSortTest::aSwapCarriesAnElementPastItsEquals() {
    QCOMPARE(orderOf({u"b"_s, u"b"_s, u"a"_s}), (std::vector{2, 1, 0}));
}

void AddressSortTest::noKeysAndOneKeyStay() {
    QCOMPARE(orderOf({}), std::vector<int>());
    QCOMPARE(orderOf({u"Ann"_s}), std::vector{0});
}

void AddressSortTest::capitalsStandBeforeSmallLetters() {
    QCOMPARE(orderOf({u"adams"_s, u"Smith"_s}), (std::vector{1, 0}));
}

void AddressSortTest::keysAreComparedByCharacterCode() {
    // Nothing is folded, and a shorter text stands before what it begins.
    QCOMPARE(orderOf({u"Žarko"_s, u"zoe"_s, u"Zoë"_s, u"Zoe"_s, u"Zo"_s, QString()}),
             (std::vector{5, 4, 3, 2, 1, 0}));
    // The halves of a pair count for themselves.
    QCOMPARE(orderOf({QString(QChar(0xFF21)), u"\U0001F600"_s}), (std::vector{1, 0}));
}

void AddressSortTest::wholeRecordsMove() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    AddressBook book(app);
    QRandomGenerator random(3);
    QList<AddressRecord> before;
    for (int i = 0; i < 100; ++i) {
        AddressRecord record;
        for (const auto field : AddressFields)
            record.*field = QString::number(random.bounded(5)) + u'/' + QString::number(i);
        record.Second = QString::number(random.bounded(5));
        before << record;
        book.makeRoom();
        book.record(i) = record;
        ++book.AddressCount;
    }
    sortRecords(book, &AddressRecord::Second);
    QStringList keys;
    for (const AddressRecord& record : std::as_const(before))
        keys << record.Second;
    const std::vector<int> order = stepByStep(keys);
    for (int i = 0; i < 100; ++i)
        QVERIFY(book.record(i) == before[order[static_cast<std::size_t>(i)]]);
}

void AddressSortTest::spareRecordsStayWhereTheyAre() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    AddressBook book(app);
    for (const QString& name : {u"c"_s, u"b"_s, u"a"_s}) {
        book.makeRoom();
        book.record(book.AddressCount).First = name;
        ++book.AddressCount;
    }
    book.AddressCount = 2;
    sortRecords(book, &AddressRecord::First);
    QCOMPARE(book.record(0).First, u"b"_s);
    QCOMPARE(book.record(1).First, u"c"_s);
    QCOMPARE(book.record(2).First, u"a"_s);
}

void AddressSortTest::swappingExchangesWholeRecords() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    AddressBook book(app);
    book.AddressRecords.resize(2);
    for (const auto field : AddressFields) {
        book.record(0).*field = u"left"_s;
        book.record(1).*field = u"right"_s;
    }
    SwapRecords(book, 0, 1);
    for (const auto field : AddressFields) {
        QCOMPARE(book.record(0).*field, u"right"_s);
        QCOMPARE(book.record(1).*field, u"left"_s);
    }
}

void AddressSortTest::swappingOutsideTheArrayFails() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    AddressBook book(app);
    book.AddressRecords.resize(2);
    QVERIFY_THROWS_EXCEPTION(RuntimeError, SwapRecords(book, 0, 2));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, SwapRecords(book, -1, 0));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressSortTest)
#include "address_sort_test.moc"
