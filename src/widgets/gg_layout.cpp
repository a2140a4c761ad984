// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_layout.h"

#include "runtime/twips.h"

#include <cmath>

namespace orvalis {

namespace {

constexpr float PicturePixelConstant = 1.75F;
constexpr int PictureUnitsPerInch = 2540;
constexpr int PixelsPerInch = 96;

int withOffset(float position, int offset) {
    return static_cast<int>(std::trunc(position + static_cast<float>(offset)));
}

/// Where something of length \a extent lies along one side: 0 at the start, 1 in the middle, 2 at
/// the end.
float along(int place, int side, float extent, float keptAtEnd) {
    switch (place) {
    case 0:
        return 1;
    case 1:
        return (static_cast<float>(side) - extent) / 2;
    default:
        return static_cast<float>(side) - extent - keptAtEnd;
    }
}

float channel(int value) {
    return static_cast<float>(value);
}

/// The default rounding mode takes a tie to the even number.
int rounded(float value) {
    return static_cast<int>(std::nearbyint(value));
}

} // namespace

QPoint alignedPosition(Placed what, int alignment, const QSize& face, float width, float height,
                       int xOffset, int yOffset) {
    if (alignment < 0 || alignment > 8)
        return {xOffset, yOffset};
    const float keptAtRight = what == Placed::Caption ? 2 : 1;
    const float x = along(alignment / 3, face.width(), width, keptAtRight);
    const float y = along(alignment % 3, face.height(), height, 1);
    return {withOffset(x, xOffset), withOffset(y, yOffset)};
}

float pictureExtent(int pixels) {
    const auto units = static_cast<float>(
        std::nearbyint(static_cast<double>(pixels) * PictureUnitsPerInch / PixelsPerInch));
    return units / static_cast<float>(TwipsPerPixel) / PicturePixelConstant;
}

std::vector<Shade> gradientShades(const Shade& from, const Shade& to, int steps) {
    std::vector<Shade> shades;
    if (steps < 1)
        return shades;
    const auto count = static_cast<float>(steps);
    const float redStep = (channel(to.red) - channel(from.red)) / count;
    const float greenStep = (channel(to.green) - channel(from.green)) / count;
    const float blueStep = (channel(to.blue) - channel(from.blue)) / count;
    float red = channel(from.red);
    float green = channel(from.green);
    float blue = channel(from.blue);
    shades.reserve(static_cast<std::size_t>(steps));
    for (int i = 1; i <= steps; ++i) {
        shades.push_back({rounded(red), rounded(green), rounded(blue)});
        red += redStep;
        green += greenStep;
        blue += blueStep;
    }
    return shades;
}

} // namespace orvalis
