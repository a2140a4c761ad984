// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

namespace orvalis {

class GridModel;
class Program;

/// The text by which a reminder's header row is found: the date's long text, "/", the time.
QString reminderKey(const QDateTime& moment);

/// Moves the grid's current row down from the first one to the row that holds the key, or to the
/// last row. \returns whether it is there.
bool seekReminder(GridModel& grid, const QString& key);

/// Looks for a reminder due at the second \a moment and pops it up, at most one.
/// \throws RuntimeError where a step fails, the steps before it being done.
void scanForReminder(Program& program, const QDateTime& moment);

} // namespace orvalis
