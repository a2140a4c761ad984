// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/picture.h"

#include "rtf/pictures/little_endian.h"
#include "rtf/pictures/metafile_size.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr double TwipsPerBitmapPixel = 15.0;
constexpr double LargestTwips = 100000;

double namedLength(const Picture& picture, int goal, int own) {
    if (goal > 0)
        return goal;
    return own * (isMetafile(picture.kind) ? TwipsPerHundredthMillimetre : TwipsPerBitmapPixel);
}

double scaled(double twips, int scale) {
    return std::max(scale > 0 ? twips * scale / 100 : twips, 0.0);
}

} // namespace

QSizeF boundedTwips(QSizeF size) {
    if (size.isEmpty())
        return {};
    size *= std::min(1.0, LargestTwips / std::max(size.width(), size.height()));
    return size.boundedTo({LargestTwips, LargestTwips}); // what the product rounds up included
}

QSizeF wantedTwips(const Picture& picture) {
    QSizeF size(namedLength(picture, picture.goalWidth, picture.width),
                namedLength(picture, picture.goalHeight, picture.height));
    if (size.isEmpty())
        size = metafileTwips(picture.bytes);
    size = {scaled(size.width(), picture.scaleX), scaled(size.height(), picture.scaleY)};
    return boundedTwips(size);
}

bool hasPlaceableHeader(QByteArrayView bytes) {
    constexpr quint32 Key = 0x9ac6cdd7;
    return readU32(bytes, 0) == Key;
}

PictureKind kindOfBytes(QByteArrayView bytes) {
    constexpr quint32 EnhancedSignature = 0x464d4520;
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return PictureKind::Png;
    if (bytes.startsWith("\xff\xd8\xff"))
        return PictureKind::Jpeg;
    if (hasPlaceableHeader(bytes))
        return PictureKind::Wmf;
    if (readU32(bytes, 0) == 1 && readU32(bytes, 40) == EnhancedSignature)
        return PictureKind::Emf;
    if ((readU16(bytes, 0) == 1 || readU16(bytes, 0) == 2) && readU16(bytes, 2) == 9)
        return PictureKind::Wmf;
    if (bytes.startsWith("GIF8") || bytes.startsWith("BM"))
        return PictureKind::Other;
    return PictureKind::Unknown;
}

} // namespace orvalis::rtf
