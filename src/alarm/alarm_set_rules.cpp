// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_set_rules.h"

#include "runtime/numeric_text.h"

namespace orvalis {

using namespace Qt::StringLiterals;

bool isTimePart(const QString& text, int limit) {
    const auto value = numericValue(text);
    return value.has_value() && *value >= 0 && *value <= limit;
}

QString twoDigits(const QString& text) {
    const auto value = numericValue(text);
    return value.has_value() && *value < 10 ? u'0' + numberText(*value) : text;
}

QString shownTime(const QString& hour, const QString& minute) {
    return hour + u" : "_s + minute + u" : 00"_s;
}

} // namespace orvalis
