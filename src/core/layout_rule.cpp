// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/layout_rule.h"

#include "runtime/numeric_text.h"

namespace orvalis {

double fontFactor(int width) {
    double factor = 0;
    switch (width) {
    case 640:
        factor = 0.8;
        break;
    case 720:
        factor = 0.9;
        break;
    case 800:
        factor = 1.0;
        break;
    case 1024:
        factor = 1.28;
        break;
    case 1152:
        factor = 1.44;
        break;
    case 1280:
        factor = 1.6;
        break;
    default:
        // The same as width / 800 in hundredths, in whole numbers so that ties are ties.
        factor = roundHalfEven(width / 8.0) / 100.0;
        break;
    }
    return factor == 0 ? 1.0 : factor;
}

int scaledFontSize(double pointSize, double factor) {
    return static_cast<int>(roundHalfEven(roundHalfEven(pointSize) / factor));
}

int unscaledFontSize(double pointSize, double factor) {
    return static_cast<int>(roundHalfEven(pointSize * factor));
}

float layoutRatio(int designWidth, int currentWidth) {
    return currentWidth == 0 ? 0.0F
                             : static_cast<float>(static_cast<double>(designWidth) / currentWidth);
}

float scaledGeometry(float twips, float ratio) {
    return ratio == 0.0F ? twips : twips / ratio;
}

} // namespace orvalis
