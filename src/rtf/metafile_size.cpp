// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/metafile_size.h"

#include "rtf/little_endian.h"
#include "rtf/picture.h"

#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr qsizetype frameLeft = 24; // and top, right, bottom, of four bytes each
constexpr qsizetype boxLeft = 6;    // and top, right, bottom, of two bytes each
constexpr qsizetype unitsPerInch = 14;

QSizeF frameTwips(QByteArrayView metafile) {
    const auto edge = [metafile](int index) {
        return double(qint32(readU32(metafile, frameLeft + 4 * index)));
    };
    return QSizeF(edge(2) - edge(0), edge(3) - edge(1)) * twipsPerHundredthMillimetre;
}

QSizeF boxTwips(QByteArrayView metafile) {
    const int units = readU16(metafile, unitsPerInch);
    if (!hasPlaceableHeader(metafile) || units == 0)
        return {};
    const auto edge = [metafile](int index) {
        return double(qint16(readU16(metafile, boxLeft + 2 * index)));
    };
    // A box may stand on its head.
    return QSizeF(std::abs(edge(2) - edge(0)), std::abs(edge(3) - edge(1))) *
           (twipsPerInch / units);
}

} // namespace

QSizeF metafileTwips(QByteArrayView metafile) {
    switch (kindOfBytes(metafile)) {
    case PictureKind::Emf:
        return frameTwips(metafile);
    case PictureKind::Wmf:
        return boxTwips(metafile);
    default:
        return {};
    }
}

} // namespace orvalis::rtf
