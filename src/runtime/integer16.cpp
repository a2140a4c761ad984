// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/integer16.h"

#include "runtime/failure.h"
#include "runtime/numeric_text.h"

namespace orvalis {

Integer16 Integer16::fromNumber(double number) {
    const double rounded = roundHalfEven(number);
    if (!(rounded >= Lowest && rounded <= Highest))
        overflow();
    return Integer16(static_cast<int>(rounded));
}

Integer16 Integer16::fromText(QStringView text) {
    const std::optional<double> number = numericValue(text);
    if (!number)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return fromNumber(*number);
}

void Integer16::overflow() {
    throw RuntimeError(ErrorNumber::Overflow);
}

} // namespace orvalis
