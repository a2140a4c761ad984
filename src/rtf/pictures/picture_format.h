// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/picture.h"

#include <QTextImageFormat>

class QTextCursor;
class QTextDocument;

namespace orvalis::rtf {

class MetafileConverter;

/// What the pictures of one file, or of one insertion, may cost together.
struct PictureBounds {
    qint64 pixelsLeft = qint64(1) << 23; ///< of the rasters that are kept
    /// That the pictures may claim to have: reading one takes the time of what it claims, however
    /// small it is made.
    qint64 claimedLeft = qint64(1) << 28;

    /// The largest raster that one picture may have now.
    qint64 mostPixels() const;
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

/// Inserts an image file (PNG, JPEG, BMP, a metafile or another kind that can be read) at the
/// cursor, one image pixel to a pixel. Its bytes are written to RTF as they are where RTF can hold
/// them.
/// \returns whether the bytes were a picture and the document had room for it.
bool insertPicture(QTextCursor& cursor, const QByteArray& bytes, MetafileConverter* converter,
                   PictureBounds& bounds);

} // namespace orvalis::rtf
