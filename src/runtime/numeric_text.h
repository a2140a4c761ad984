// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace orvalis {

/// The number that a text tells, empty when it tells none: an optional sign, digits with "." as the
/// decimal sign, an optional exponent, blanks around. "7", " 7 ", "7.0", "1e1" and ".5" are
/// numbers; "", "x", "7 8", "0x7" and "inf" are not, nor is one too large to be held.
std::optional<double> numericValue(QStringView text);

bool isNumericText(QStringView text);

/// The text of a number: no decimals where it is whole, up to fifteen digits otherwise. The decimal
/// sign is "." whatever the locale; the rules that look for it take it as an argument.
QString numberText(double number, QChar decimalSign = u'.');
/// The same with the seven digits that a single-precision number holds.
QString numberText(float number, QChar decimalSign = u'.');

/// The nearest whole number, a tie going to the even one: 81.5 gives 82, 22.5 gives 22.
double roundHalfEven(double number);

} // namespace orvalis
