// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/picture.h"

#include <QImage>

namespace orvalis::rtf {

/// The picture in a packed DIB: its header, colours and rows. Null when the bytes are too few for
/// what the header claims, or the header is none. Nothing is allocated before that is known.
QImage imageOfDib(QByteArrayView dib);

/// The picture in a bitmap file, a packed DIB behind a header of its own. What a file that is cut
/// short does not tell is in its first colour, or black; one that claims many times what it has is
/// null, too.
QImage imageOfBitmapFile(const QByteArray& file);

/// The picture in the rows of a device dependent bitmap of one or 24 or 32 bits a pixel.
QImage imageOfRows(QByteArrayView rows, QSize size, const DeviceBitmap& bitmap);

/// A picture as a packed DIB of 24 bits a pixel, transparent parts on white.
QByteArray dibOfImage(const QImage& image);

/// The packed DIB that a metafile wraps; empty when it draws something else.
QByteArrayView dibOfMetafile(QByteArrayView metafile);
QByteArrayView dibOfEnhancedMetafile(QByteArrayView metafile);

/// A metafile that wraps a packed DIB, as Windows' own editors write pictures.
/// \param size of the picture in pixels.
QByteArray metafileOfDib(QByteArrayView dib, QSize size);

} // namespace orvalis::rtf
