// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

namespace orvalis {

/// The text of a moment by a pattern. Day and month names, AM and PM are those of the default
/// locale; digits are always 0 to 9, and ":", "/" and blanks stand for themselves, because such
/// texts are compared with each other (a stored reminder with the present second).
///
/// Tokens, in either case: "d", "dd", "ddd", "dddd", "m", "mm", "mmm", "mmmm", "yy", "yyyy", "h",
/// "hh", "n", "nn", "s", "ss", "AMPM". "m" and "mm" next after an hour are minutes. "AMPM" makes
/// the hours of the whole pattern run from 1 to 12. A text in double quotes and a character
/// behind "\" are taken as they stand. The named formats "Long Time" (with seconds),
/// "Short Time" (without) and "Short Date" follow the locale altogether.
/// \throws RuntimeError TypeMismatch when the value is no valid moment.
QString Format(const QDateTime& value, QStringView pattern);
/// The same of a date at midnight.
QString Format(QDate value, QStringView pattern);
/// The same of a time of day; its date is day 0 of the calendar of moments, 30 December 1899.
QString Format(QTime value, QStringView pattern);

/// The default text of a moment: the locale's short date, a blank, and the time with seconds.
QString generalDate(const QDateTime& value);

/// The locale's short date.
QString shortDate(QDate value);

/// The time of day that a text such as "07:30:00" tells: hours 0 to 23, minutes and, where given,
/// seconds 0 to 59, each of one or two digits, blanks around them allowed.
/// \throws RuntimeError TypeMismatch for any other text.
QTime TimeValue(QStringView text);

} // namespace orvalis
