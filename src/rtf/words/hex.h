// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>

namespace orvalis::rtf {

inline constexpr std::array<qint8, 256> HexDigits = [] {
    std::array<qint8, 256> digits{};
    digits.fill(-1);
    for (int i = 0; i < 10; ++i)
        digits['0' + i] = qint8(i);
    for (int i = 0; i < 6; ++i)
        digits['a' + i] = digits['A' + i] = qint8(10 + i);
    return digits;
}();

/// The value of a hexadecimal digit, -1 for any other byte.
constexpr int hexDigit(uchar byte) {
    return HexDigits[byte];
}

} // namespace orvalis::rtf
