// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// Whether a text is a number from 0 to the limit.
bool isTimePart(const QString& text, int limit);

/// The text with two digits: a number below 10 gets a "0" ahead, as "7" becomes "07". A text that
/// is no number, and a number of 10 and more, stay as they are.
QString twoDigits(const QString& text);

/// The choice as the dialog shows it, "07 : 30 : 00".
QString shownTime(const QString& hour, const QString& minute);

} // namespace orvalis
