// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QSize>

#include <vector>

namespace orvalis {

/// Whether a placement is that of the caption or of the picture: on the right the caption keeps two
/// pixels from the edge, the picture one.
enum class Placed { Caption, Picture };

/// The place of something \a width by \a height pixels large on a button's face of \a face pixels.
/// \param alignment 0 to 8: column (left, centre, right) times three plus row (top, middle,
/// bottom). Any other number places at the offsets alone.
/// \returns whole pixels, cut toward zero.
QPoint alignedPosition(Placed what, int alignment, const QSize& face, float width, float height,
                       int xOffset, int yOffset);

/// The length of a picture side as the layout counts it: pixels brought to picture units (2540 to
/// the inch, whole), those divided by the twips of a pixel and by 1.75.
float pictureExtent(int pixels);

/// One red, green and blue of a gradient, each 0 to 255.
struct Shade {
    int red = 0;
    int green = 0;
    int blue = 0;
    friend bool operator==(const Shade&, const Shade&) = default;
};

/// The shades of a gradient's lines, the first one \a from, in single-precision steps that would
/// reach \a to one line behind the last. Ties round to the even number. Fewer than one step: none.
std::vector<Shade> gradientShades(const Shade& from, const Shade& to, int steps);

} // namespace orvalis
