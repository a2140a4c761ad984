// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/week_range.h"

#include <array>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int January = 1;
constexpr int February = 2;
constexpr int December = 12;
/// The year whose month lengths every range is told by.
constexpr int RangeYear = 1899;

bool isLeapYear(int year) {
    return (year & 3) == 0 && (year % 100 != 0 || year % 400 == 0);
}

QString dayText(int month, int day) {
    return MonthText(month) + u' ' + QString::number(day);
}

} // namespace

int DaysInMonth(int month, int year) {
    switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case February:
        return isLeapYear(year) ? 29 : 28;
    default:
        return 31;
    }
}

QString MonthText(int number) {
    static const std::array<QString, December> names{
        u"January"_s, u"February"_s, u"March"_s,     u"April"_s,   u"May"_s,      u"June"_s,
        u"July"_s,    u"August"_s,   u"September"_s, u"Oktober"_s, u"November"_s, u"December"_s};
    if (number < January || number > December)
        return {};
    return names.at(static_cast<std::size_t>(number - 1));
}

QString WeekRangeText(int month, int day, int dayOfWeek) {
    const int sinceSunday = dayOfWeek - 1;
    const int length = DaysInMonth(month, RangeYear);
    const int first = day - sinceSunday;
    const int last = day + (6 - sinceSunday);
    if (last > length) {
        const int next = month < December ? month + 1 : January;
        return u"From "_s + dayText(month, first) + u" To "_s + dayText(next, 6 - (length - first));
    }
    if (first > 0)
        return u"From "_s + dayText(month, first) + u" To "_s + QString::number(last);
    const int previous = month > January ? month - 1 : December;
    return u"From "_s + dayText(previous, DaysInMonth(month - 1, RangeYear) + first) + u" To "_s +
           dayText(month, last);
}

} // namespace orvalis
