// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// The factor by which a screen of \a width units makes point sizes smaller: fixed for the usual
/// widths, otherwise width / 800 rounded to two decimal places, and 1 where that would be nothing.
double fontFactor(int width);

/// A point size under the layout: read as a whole number, divided by the factor, stored as a whole
/// number. Ties go to the even one.
int scaledFontSize(double pointSize, double factor);

/// The size a setting keeps for a font that shows at \a pointSize: what the layout made smaller is
/// made larger again, so that a size survives any number of runs on any screen.
int unscaledFontSize(double pointSize, double factor);

/// The ratio of the width at which a form was drawn to the width of its background picture, both in
/// twips, in single precision; 0 where there is none.
float layoutRatio(int designWidth, int currentWidth);

/// A geometry value in twips under the layout: divided by the ratio. Without a ratio it stays.
float scaledGeometry(float twips, float ratio);

} // namespace orvalis
