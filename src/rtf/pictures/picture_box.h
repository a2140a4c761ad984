// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/picture.h"

#include <QImage>

namespace orvalis::rtf {

/// The size in twips of the box that stands for a picture which cannot be drawn: the one at which
/// the picture would show. Only what its raster claims is made smaller, in its shape, where it is
/// large, and where nothing tells a size the box is an inch square.
QSizeF boxTwips(const Picture& picture);

/// The box itself: a frame whose corners are joined, so that it is not taken for a white picture.
/// It has more pixels than it shows, for finer screens, at a bit each.
/// \param shown its size in pixels of the document.
/// \param mostPixels the largest raster of 32 bits a pixel that it may take the room of.
QImage emptyBox(QSizeF shown, qint64 mostPixels);

} // namespace orvalis::rtf
