// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/integer16.h"

#include <QDate>
#include <QString>

namespace orvalis {

class GridModel;

/// A date as entries and list headers tell it: "Saturday, June 01, 2002" in the user's language.
QString dateText(QDate date);

/// The time label as the combos set it, "07:30:00".
QString timeLabel(const QString& hour, const QString& minute);

/// Whether a combo's text may stand in the time label: nothing at all, or a number of 0 to \a
/// limit.
bool fitsTimeLabel(const QString& text, int limit);

/// Header of a reminder: its date, "/" and the time label.
QString remindHeader(QDate date, const QString& timeLabel);

/// Appends an item to the Priority list and colours its header, which stays current.
void addPriorityItem(GridModel& grid, QDate date, const QString& message);

/// Appends an item to the Remind list. Its colours come with the next load.
void addRemindItem(GridModel& grid, const QString& header, const QString& message);

/// What a key does to the current cell of a list: Enter ("\r") moves on, from the last row to row
/// 1; Backspace ("\b") takes the last character unless the text is blank; any other text is
/// appended, though never to row 0.
void typeIntoGrid(GridModel& grid, const QString& key);

/// Where the search in the to-do document stands. Positions are 16-bit: a match beyond 32767 fails
/// with 6.
class FindSteps {
public:
    /// Forgets the last match.
    void restart() { m_position = 0; }
    /// Position at which the next search starts: one past the last match.
    int start() const { return m_position + 1; }
    /// Takes what the search gave.
    void store(int found) { m_position = found; }
    int position() const { return m_position; }

private:
    Integer16 m_position;
};

/// The search options of the two check boxes added up: 2 for a whole word, 4 for matching case.
int findOptions(bool wholeWord, bool matchCase);

} // namespace orvalis
