// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/time_parts.h"

#include "runtime/numeric_text.h"

namespace orvalis {

using namespace Qt::StringLiterals;

bool isTimePart(const QString& text, int last) {
    const auto value = numericValue(text);
    return value.has_value() && *value >= 0 && *value <= last;
}

QString twoDigits(const QString& text) {
    const auto value = numericValue(text);
    return value.has_value() && *value < 10 ? u'0' + numberText(*value) : text;
}

QStringList twoDigitNumbers(int last) {
    QStringList numbers;
    for (int number = 0; number <= last; ++number)
        numbers << twoDigits(QString::number(number));
    return numbers;
}

QString spacedTime(const QString& hour, const QString& minute) {
    return hour + u" : "_s + minute + u" : 00"_s;
}

} // namespace orvalis
