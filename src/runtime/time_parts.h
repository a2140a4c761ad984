// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace orvalis {

/// The highest numbers of a time's parts.
constexpr int LastHour = 23;
constexpr int LastMinute = 59;

/// Whether a text is a number from 0 to \a last.
bool isTimePart(const QString& text, int last);

/// The text with two digits: a number below 10 gets a "0" ahead, as "7" becomes "07". A text that
/// is no number, and a number of 10 and more, stay as they are.
QString twoDigits(const QString& text);

/// The numbers 0 to \a last as a list to choose from, each with two digits.
QStringList twoDigitNumbers(int last);

/// A choice of hour and minute with blanks round its colons, "07 : 30 : 00". It never equals a
/// present time, which has none.
QString spacedTime(const QString& hour, const QString& minute);

} // namespace orvalis
