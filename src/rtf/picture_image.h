// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/picture.h"

#include <QImage>

namespace orvalis::rtf {

class MetafileConverter;

/// The size of a picture's own raster in pixels, read from its head alone; empty when unknown.
QSize pixelSize(const Picture& picture);

/// The size in twips at which a drawing shows, an inch square where nothing names one; empty for
/// a picture that is no metafile and names no size.
QSizeF drawingTwips(const Picture& picture);

/// Draws a picture. One with more pixels than allowed comes smaller, in the same shape.
/// \param mostPixels the largest raster that may be made.
/// \returns a null image when the bytes are not what they claim, or nothing can draw them.
QImage imageOfPicture(const Picture& picture, qint64 mostPixels, MetafileConverter* converter);

} // namespace orvalis::rtf
