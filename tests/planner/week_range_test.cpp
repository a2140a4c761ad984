// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/week_range.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QDate>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

/// A day of a year that has 365 days whatever its number, as people would count it off on last
/// year's wall calendar.
struct WallDay {
    int month;
    int day;
};

WallDay wallDay(int index) {
    constexpr int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int rest = (index + 365) % 365;
    for (int month = 1;; ++month) {
        const int length = Lengths[month - 1];
        if (rest < length)
            return {month, rest + 1};
        rest -= length;
    }
}

/// The range by walking along the wall calendar, with no arithmetic of months.
QString walkedRange(const QDate& date) {
    const QStringList names =
        u"January February March April May June July August September Oktober November December"_s
            .split(u' ');
    int index = 0;
    for (QDate day(1899, 1, 1); day.month() < date.month(); day = day.addDays(1))
        ++index;
    index += date.day() - 1;
    const int sinceSunday = date.dayOfWeek() % 7;
    WallDay first = wallDay(index - sinceSunday);
    // The day that such a calendar lacks is told as it stands where the week begins with it.
    if (date.month() == 2 && date.day() == 29 && sinceSunday == 0)
        first = {2, 29};
    const WallDay last = wallDay(index + 6 - sinceSunday);
    QString text = u"From %1 %2 To "_s.arg(names[first.month - 1]).arg(first.day);
    if (last.month != first.month)
        text += names[last.month - 1] + u' ';
    return text + QString::number(last.day);
}

QString rangeOf(const QDate& date) {
    return WeekRangeText(date.month(), date.day(), date.dayOfWeek() % 7 + 1);
}

} // namespace

class WeekRangeTest : public QObject {
    Q_OBJECT
private slots:
    void monthsHaveTheirLengths_data();
    void monthsHaveTheirLengths();
    void monthNamesAreThePlannersOwn();
    void aNumberThatIsNoMonthHasNoName();
    void theRangeIsToldAsInTheWorkedCases_data();
    void theRangeIsToldAsInTheWorkedCases();
    void everyDayOfFiftyYearsAgreesWithTheWallCalendar();
    void theWeekOfTheTwentyNinthOfFebruaryRunsIntoMarch_data();
    void theWeekOfTheTwentyNinthOfFebruaryRunsIntoMarch();
    void theFirstOfMarchOfALeapYearCountsBackFromTheTwentyEighth();
    void aWeekIntoJanuaryNamesIt();
    void aWeekBackIntoDecemberCountsFromThirtyOne();
};

void WeekRangeTest::monthsHaveTheirLengths_data() {
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    for (const int month : {4, 6, 9, 11})
        QTest::addRow("month %d", month) << month << 2002 << 30;
    for (const int month : {1, 3, 5, 7, 8, 10, 12, 0, 13, -1})
        QTest::addRow("month %d", month) << month << 2002 << 31;
    QTest::newRow("common year") << 2 << 2023 << 28;
    QTest::newRow("even common year") << 2 << 2022 << 28;
    QTest::newRow("leap year") << 2 << 2024 << 29;
    QTest::newRow("century") << 2 << 1900 << 28;
    QTest::newRow("fourth century") << 2 << 2000 << 29;
    QTest::newRow("the year of the ranges") << 2 << 1899 << 28;
}

void WeekRangeTest::monthsHaveTheirLengths() {
    QFETCH(int, month);
    QFETCH(int, year);
    QTEST(DaysInMonth(month, year), "days");
}

void WeekRangeTest::monthNamesAreThePlannersOwn() {
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names << MonthText(month);
    QCOMPARE(names, (QStringList{u"January"_s, u"February"_s, u"March"_s, u"April"_s, u"May"_s,
                                 u"June"_s, u"July"_s, u"August"_s, u"September"_s, u"Oktober"_s,
                                 u"November"_s, u"December"_s}));
}

void WeekRangeTest::aNumberThatIsNoMonthHasNoName() {
    for (const int number : {0, 13, -1, 100})
        QCOMPARE(MonthText(number), QString());
}

void WeekRangeTest::theRangeIsToldAsInTheWorkedCases_data() {
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    QTest::newRow("within a month") << QDate(2002, 6, 12) << u"From June 9 To 15"_s;
    QTest::newRow("1 January") << QDate(2002, 1, 1) << u"From December 30 To January 5"_s;
    QTest::newRow("30 December") << QDate(2002, 12, 30) << u"From December 29 To January 4"_s;
    QTest::newRow("28 February, leap") << QDate(2024, 2, 28) << u"From February 25 To March 3"_s;
    QTest::newRow("1 March, leap") << QDate(2024, 3, 1) << u"From February 24 To March 2"_s;
    QTest::newRow("31 December") << QDate(2002, 12, 31) << u"From December 29 To January 4"_s;
    QTest::newRow("28 February, common") << QDate(2023, 2, 28) << u"From February 26 To March 4"_s;
    QTest::newRow("1 March, common") << QDate(2023, 3, 1) << u"From February 26 To March 4"_s;
    QTest::newRow("29 February, Thursday")
        << QDate(2024, 2, 29) << u"From February 25 To March 3"_s;
    QTest::newRow("1 January, Sunday") << QDate(2023, 1, 1) << u"From January 1 To 7"_s;
    QTest::newRow("last Saturday of a month") << QDate(2002, 8, 31) << u"From August 25 To 31"_s;
    QTest::newRow("over a month of 30")
        << QDate(2002, 10, 1) << u"From September 29 To Oktober 5"_s;
}

void WeekRangeTest::theRangeIsToldAsInTheWorkedCases() {
    QFETCH(QDate, date);
    QTEST(rangeOf(date), "text");
}

void WeekRangeTest::everyDayOfFiftyYearsAgreesWithTheWallCalendar() {
    int days = 0;
    for (QDate date(1990, 1, 1); date <= QDate(2040, 12, 31); date = date.addDays(1), ++days)
        if (rangeOf(date) != walkedRange(date))
            QCOMPARE(date.toString(Qt::ISODate) + u' ' + rangeOf(date),
                     date.toString(Qt::ISODate) + u' ' + walkedRange(date));
    QCOMPARE(days, 18628);
}

void WeekRangeTest::theWeekOfTheTwentyNinthOfFebruaryRunsIntoMarch_data() {
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    QTest::newRow("the last day of its week")
        << QDate(2020, 2, 29) << u"From February 23 To March 1"_s;
    QTest::newRow("the first day of its week")
        << QDate(2032, 2, 29) << u"From February 29 To March 7"_s;
}

void WeekRangeTest::theWeekOfTheTwentyNinthOfFebruaryRunsIntoMarch() {
    QFETCH(QDate, date);
    QTEST(rangeOf(date), "text");
}

void WeekRangeTest::theFirstOfMarchOfALeapYearCountsBackFromTheTwentyEighth() {
    QCOMPARE(rangeOf(QDate(2000, 3, 1)), u"From February 26 To March 4"_s);
    QCOMPARE(rangeOf(QDate(2020, 3, 1)), u"From March 1 To 7"_s); // a Sunday
}

void WeekRangeTest::aWeekIntoJanuaryNamesIt() {
    QCOMPARE(rangeOf(QDate(2024, 12, 31)), u"From December 29 To January 4"_s);
}

void WeekRangeTest::aWeekBackIntoDecemberCountsFromThirtyOne() {
    QCOMPARE(rangeOf(QDate(2022, 1, 1)), u"From December 26 To January 1"_s); // a Saturday
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, WeekRangeTest)
#include "week_range_test.moc"
