// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// The length of a month in days. A number that is no month has 31, the 0 ahead of January too.
/// \param month 1 to 12.
int DaysInMonth(int month, int year);

/// The name of a month as the planner writes it, in English in every language; "" for a number that
/// is no month. The tenth is "Oktober".
QString MonthText(int number);

/// The first and the last day of a date's week, Sunday to Saturday, as "From June 9 To 15" or
/// "From December 30 To January 5". Months have the lengths of a common year whatever the year: a
/// planner of a leap year's last week of February tells March as one day further on. Planners that
/// people keep are told so, and a page of the same week reads the same in every year.
/// \param dayOfWeek 1 for Sunday to 7 for Saturday.
QString WeekRangeText(int month, int day, int dayOfWeek);

} // namespace orvalis
