// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/picture.h"

#include <QImage>

namespace orvalis::rtf {

class MetafileConverter;

/// The size of a picture's own raster in pixels, read from its head alone; empty when unknown.
QSize pixelSize(const Picture& picture);

/// The size in twips at which a picture shows: the one it wants, else a pixel of its own to one of
/// the document, else, where it is a drawing, that of its window or an inch square. Empty where
/// nothing tells a size.
QSizeF shownTwips(const Picture& picture);

/// Draws a picture. One with more pixels than allowed comes smaller, in the same shape.
/// \param mostPixels the largest raster that may be made.
/// \returns a null image when the bytes are not what they claim, or nothing can draw them.
QImage imageOfPicture(const Picture& picture, qint64 mostPixels, MetafileConverter* converter);

/// The bytes of a PNG file with the picture.
QByteArray pngOf(QImage image);

} // namespace orvalis::rtf
