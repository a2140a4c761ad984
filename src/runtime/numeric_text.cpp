// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/numeric_text.h"

#include <algorithm>
#include <cmath>

namespace orvalis {

namespace {

/// The texts that count as numbers are told by their letters, so that what a conversion might
/// accept beyond them (hexadecimal, "inf", "nan") does not slip in.
bool looksNumeric(QStringView text) {
    return std::all_of(
        text.begin(), text.end(),
        [](QChar c) {
            return (c >= u'0' && c <= u'9') || c == u'.' || c == u'+' || c == u'-' || c == u'e' ||
                   c == u'E';
        });
}

QString told(double number, int digits, QChar decimalSign) {
    return QString::number(number, 'g', digits).toUpper().replace(u'.', decimalSign);
}

} // namespace

std::optional<double> numericValue(QStringView text) {
    const QStringView trimmed = text.trimmed();
    if (!looksNumeric(trimmed))
        return std::nullopt;
    bool valid = false;
    const double number = trimmed.toDouble(&valid);
    if (!valid || !std::isfinite(number))
        return std::nullopt;
    return number;
}

bool isNumericText(QStringView text) {
    return numericValue(text).has_value();
}

QString numberText(double number, QChar decimalSign) {
    return told(number, 15, decimalSign);
}

QString numberText(float number, QChar decimalSign) {
    return told(static_cast<double>(number), 7, decimalSign);
}

double roundHalfEven(double number) {
    return std::nearbyint(number);
}

} // namespace orvalis
