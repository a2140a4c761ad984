// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/picture.h"

#include <QTextImageFormat>

class QTextCursor;
class QTextDocument;

namespace orvalis::rtf {

class MetafileConverter;

/// How large a raster a picture may have, and how large the one made of it was.
struct PictureBounds {
    qint64 mostPixels = qint64(1) << 23;
    qint64 spentPixels = 0;
};

/// Gives the document a picture and makes the format that shows it. The format keeps the picture's
/// own bytes. A picture that cannot be drawn shows as an empty box; one without bytes gives an
/// invalid format.
QTextImageFormat pictureFormat(QTextDocument& document, const Picture& picture,
                               MetafileConverter* converter, PictureBounds& bounds);

/// Draws a metafile in the place of a picture that cannot be drawn. The format keeps the bytes of
/// both.
/// \param box the format of the picture, which stays a box where the metafile cannot be drawn
/// either.
void showFallback(QTextDocument& document, const Picture& fallback, MetafileConverter* converter,
                  PictureBounds& bounds, QTextImageFormat& box);

/// The format of a picture as it is when the picture is hidden.
QTextImageFormat hiddenPicture(QTextImageFormat format);

/// The picture behind a format: its own bytes where they are known, otherwise the document's image
/// as a PNG. Its goal is the size at which the format shows it, but for an empty box of a size
/// that nobody named, which has none. Without bytes when there is none.
Picture pictureOfFormat(const QTextDocument& document, const QTextImageFormat& format);

/// Inserts an image file (PNG, JPEG, BMP or another kind that Qt reads) at the cursor, one image
/// pixel to a pixel. Its bytes are written to RTF as they are where RTF can hold them.
/// \returns whether the bytes were a picture.
bool insertPicture(QTextCursor& cursor, const QByteArray& bytes);

} // namespace orvalis::rtf
