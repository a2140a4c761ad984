// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

class RichTextBox;

/// The week that a planner is written for, as the calendar tells of its selected date.
struct PlannerWeek {
    int day;       ///< 1 to 31
    int month;     ///< 1 to 12
    int year;      ///< as people count
    int dayOfWeek; ///< 1 for Sunday to 7 for Saturday
    int week;      ///< the calendar's own number of the week
};

/// Which day heads the page.
enum class FirstDay {
    Sunday, ///< with the line that names the week's first and last day
    Monday, ///< without that line
};

/// Writes the page of a week in the place of what the box holds: title, number of the week, its
/// range, and a block to write in for each day. What the page is not told (italic, struck through,
/// place of the lines) stays as the box has it.
void writePlannerPage(RichTextBox& page, const PlannerWeek& week, FirstDay firstDay);

} // namespace orvalis
