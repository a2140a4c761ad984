// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/picture.h"

#include "rtf/little_endian.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr double twipsPerHundredthMillimetre = 1440.0 / 2540.0;
constexpr double twipsPerBitmapPixel = 15.0;
constexpr double largestTwips = 100000;

double wantedLength(const Picture& picture, int goal, int scale, int own) {
    double twips = goal;
    if (goal <= 0) {
        const bool metafile = picture.kind == PictureKind::Wmf || picture.kind == PictureKind::Emf;
        twips = own * (metafile ? twipsPerHundredthMillimetre : twipsPerBitmapPixel);
    }
    if (scale > 0)
        twips = twips * scale / 100;
    return std::clamp(twips, 0.0, largestTwips);
}

} // namespace

QSizeF wantedTwips(const Picture& picture) {
    const double width = wantedLength(picture, picture.goalWidth, picture.scaleX, picture.width);
    const double height = wantedLength(picture, picture.goalHeight, picture.scaleY, picture.height);
    return width > 0 && height > 0 ? QSizeF(width, height) : QSizeF();
}

PictureKind kindOfBytes(QByteArrayView bytes) {
    constexpr quint32 placeableKey = 0x9ac6cdd7;
    constexpr quint32 enhancedSignature = 0x464d4520;
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return PictureKind::Png;
    if (bytes.startsWith("\xff\xd8\xff"))
        return PictureKind::Jpeg;
    if (readU32(bytes, 0) == placeableKey)
        return PictureKind::Wmf;
    if (readU32(bytes, 0) == 1 && readU32(bytes, 40) == enhancedSignature)
        return PictureKind::Emf;
    if ((readU16(bytes, 0) == 1 || readU16(bytes, 0) == 2) && readU16(bytes, 2) == 9)
        return PictureKind::Wmf;
    if (bytes.startsWith("GIF8") || bytes.startsWith("BM"))
        return PictureKind::Other;
    return PictureKind::Unknown;
}

} // namespace orvalis::rtf
