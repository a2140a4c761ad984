// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/picture_source.h"

#include <QColor>

namespace orvalis::test {

/// A picture of one colour, \a side pixels wide and high.
inline PictureSource square(int side, const QColor& colour = Qt::green) {
    QPixmap pixmap(side, side);
    pixmap.fill(colour);
    return pixmap;
}

} // namespace orvalis::test
