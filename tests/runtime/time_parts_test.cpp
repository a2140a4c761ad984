// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/time_parts.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class TimePartsTest : public QObject {
    Q_OBJECT
private slots:
    void onlyNumbersUpToTheLastArePartsOfATime_data();
    void onlyNumbersUpToTheLastArePartsOfATime();
    void numbersBelowTenGetALeadingZero_data();
    void numbersBelowTenGetALeadingZero();
    void theListsHaveEachNumberInTwoDigits();
    void aSpacedTimeCannotEqualATime();
};

void TimePartsTest::onlyNumbersUpToTheLastArePartsOfATime_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPart");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("0") << u"0"_s << true;
    QTest::newRow("23") << u"23"_s << true;
    QTest::newRow("24") << u"24"_s << false;
    QTest::newRow("23.5") << u"23.5"_s << false;
    QTest::newRow("-1") << u"-1"_s << false;
    QTest::newRow("blanks round it") << u" 7 "_s << true;
    QTest::newRow("exponent") << u"1e1"_s << true;
    QTest::newRow("exponent too large") << u"1e2"_s << false;
    QTest::newRow("letters") << u"x"_s << false;
    QTest::newRow("number and letters") << u"7x"_s << false;
    QTest::newRow("a blank") << u" "_s << false;
}

void TimePartsTest::onlyNumbersUpToTheLastArePartsOfATime() {
    QFETCH(QString, text);
    QFETCH(bool, isPart);
    QCOMPARE(isTimePart(text, LastHour), isPart);
}

void TimePartsTest::numbersBelowTenGetALeadingZero_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("padded");
    QTest::newRow("7") << u"7"_s << u"07"_s;
    QTest::newRow("0") << u"0"_s << u"00"_s;
    QTest::newRow("07 stays") << u"07"_s << u"07"_s;
    QTest::newRow("blanks go") << u" 7 "_s << u"07"_s;
    QTest::newRow("7.0") << u"7.0"_s << u"07"_s;
    QTest::newRow("10") << u"10"_s << u"10"_s;
    QTest::newRow("1e1 is ten") << u"1e1"_s << u"1e1"_s;
    QTest::newRow("24") << u"24"_s << u"24"_s;
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("no number") << u"x"_s << u"x"_s;
}

void TimePartsTest::numbersBelowTenGetALeadingZero() {
    QFETCH(QString, text);
    QFETCH(QString, padded);
    QCOMPARE(twoDigits(text), padded);
}

void TimePartsTest::theListsHaveEachNumberInTwoDigits() {
    const QStringList hours = twoDigitNumbers(LastHour);
    QCOMPARE(hours.size(), 24);
    QCOMPARE(hours.first(), u"00"_s);
    QCOMPARE(hours[9], u"09"_s);
    QCOMPARE(hours[10], u"10"_s);
    QCOMPARE(hours.last(), u"23"_s);
    QCOMPARE(twoDigitNumbers(LastMinute).size(), 60);
    QCOMPARE(twoDigitNumbers(LastMinute).last(), u"59"_s);
}

void TimePartsTest::aSpacedTimeCannotEqualATime() {
    QCOMPARE(spacedTime(u"07"_s, u"30"_s), u"07 : 30 : 00"_s);
    QVERIFY(spacedTime(u"00"_s, u"00"_s) != u"00:00:00"_s);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, TimePartsTest)
#include "time_parts_test.moc"
