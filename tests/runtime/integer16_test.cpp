// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/integer16.h"

#include "runtime/failure.h"
#include "support/failure_of.h"
#include "support/test_main.h"

#include <QCoreApplication>

#include <limits>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

class Integer16Test : public QObject {
    Q_OBJECT
private slots:
    void itsLimitsHoldExactly();
    void sumsFailInsteadOfWrapping();
    void plainNumbersBesideItAreCheckedToo();
    void comparisonsTakeAnyWholeNumber();
    void numbersAreRoundedHalfToEven_data();
    void numbersAreRoundedHalfToEven();
    void textsAreReadAsNumbers();
};

void Integer16Test::itsLimitsHoldExactly() {
    QCOMPARE(int{Integer16()}, 0);
    QCOMPARE(int{Integer16(32767)}, 32767);
    QCOMPARE(int{Integer16(-32768)}, -32768);
    QCOMPARE(failureOf([] { Integer16(32768); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16(-32769); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16(qint64{1} << 32); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16(std::numeric_limits<quint64>::max() / 2); }),
             ErrorNumber::Overflow);
}

void Integer16Test::sumsFailInsteadOfWrapping() {
    Integer16 position = 32766;
    ++position;
    QCOMPARE(int{position}, 32767);
    QCOMPARE(failureOf([&] { ++position; }), ErrorNumber::Overflow);
    QCOMPARE(int{position}, 32767); // a failed step leaves it as it was
    QCOMPARE(failureOf([&] { position += 2; }), ErrorNumber::Overflow);
    Integer16 low = -32768;
    QCOMPARE(failureOf([&] { --low; }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([&] { low -= 1; }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([&] { -low; }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([&] { low *= low; }), ErrorNumber::Overflow);
    QCOMPARE(int{Integer16(181) * Integer16(181)}, 32761);
    QCOMPARE(failureOf([] { Integer16(182) * Integer16(182); }), ErrorNumber::Overflow);
    QCOMPARE(int{Integer16(-5) - Integer16(3)}, -8);
}

void Integer16Test::plainNumbersBesideItAreCheckedToo() {
    QCOMPARE(int{Integer16(32766) + 1}, 32767);
    QCOMPARE(failureOf([] { Integer16(32767) + 1; }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { 1 + Integer16(32767); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { -2 - Integer16(32767); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16(16384) * 2; }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16(1) + 40000; }), ErrorNumber::Overflow);
}

void Integer16Test::comparisonsTakeAnyWholeNumber() {
    QVERIFY(Integer16(5) == 5);
    QVERIFY(Integer16(5) < 40000);
    QVERIFY(Integer16(-5) > -40000);
    QVERIFY(Integer16(3) < Integer16(4));
}

void Integer16Test::numbersAreRoundedHalfToEven_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("rounded");
    QTest::newRow("half up to even") << 81.5 << 82;
    QTest::newRow("half down to even") << 22.5 << 22;
    QTest::newRow("half to nought") << 0.5 << 0;
    QTest::newRow("negative half") << -1.5 << -2;
    QTest::newRow("below half") << 1.49 << 1;
    QTest::newRow("highest") << 32767.49 << 32767;
    QTest::newRow("lowest") << -32768.5 << -32768;
}

void Integer16Test::numbersAreRoundedHalfToEven() {
    QFETCH(double, number);
    QFETCH(int, rounded);
    QCOMPARE(int{Integer16::fromNumber(number)}, rounded);
}

void Integer16Test::textsAreReadAsNumbers() {
    QCOMPARE(int{Integer16::fromText(u" 12 ")}, 12);
    QCOMPARE(int{Integer16::fromText(u"2.5")}, 2);
    QCOMPARE(failureOf([] { Integer16::fromText(u"x"); }), ErrorNumber::TypeMismatch);
    QCOMPARE(failureOf([] { Integer16::fromText(u""); }), ErrorNumber::TypeMismatch);
    QCOMPARE(failureOf([] { Integer16::fromText(u"32768"); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16::fromText(u"1e300"); }), ErrorNumber::Overflow);
    QCOMPARE(failureOf([] { Integer16::fromNumber(std::numeric_limits<double>::quiet_NaN()); }),
             ErrorNumber::Overflow);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, Integer16Test)
#include "integer16_test.moc"
