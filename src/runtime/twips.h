// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace orvalis {

/// Layout is told in twips, 1440 to the inch; a logical pixel is always 15 of them.
constexpr int TwipsPerPixel = 15;

constexpr double twipsToPixelsF(double twips) {
    return twips / TwipsPerPixel;
}

/// To the nearest pixel.
inline int twipsToPixels(double twips) {
    return static_cast<int>(std::lround(twipsToPixelsF(twips)));
}

/// To the nearest twip.
inline int pixelsToTwips(double pixels) {
    return static_cast<int>(std::lround(pixels * TwipsPerPixel));
}

} // namespace orvalis
