// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/metafile_size.h"

#include "rtf/formats/formats.h"
#include "rtf/pictures/little_endian.h"
#include "rtf/pictures/metafile_records.h"
#include "rtf/pictures/picture.h"

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr qsizetype FrameLeft = 24; // and top, right, bottom, of four bytes each
constexpr qsizetype BoxLeft = 6;    // and top, right, bottom, of two bytes each
constexpr qsizetype UnitsPerInch = 14;

constexpr double WidestOnPage = 6 * TwipsPerInch;

QSizeF frameTwips(QByteArrayView metafile) {
    const auto edge = [metafile](int index) {
        return double(qint32(readU32(metafile, FrameLeft + 4 * index)));
    };
    return QSizeF(edge(2) - edge(0), edge(3) - edge(1)) * TwipsPerHundredthMillimetre;
}

QSizeF boxTwips(QByteArrayView metafile) {
    const int units = readU16(metafile, UnitsPerInch);
    if (!hasPlaceableHeader(metafile) || units == 0)
        return {};
    const auto edge = [metafile](int index) {
        return double(qint16(readU16(metafile, BoxLeft + 2 * index)));
    };
    // A box may stand on its head.
    return QSizeF(std::abs(edge(2) - edge(0)), std::abs(edge(3) - edge(1))) *
           (TwipsPerInch / units);
}

// The map modes in which a unit is always as long.
double twipsOfUnit(int mapMode) {
    switch (mapMode) {
    case 2:
        return TwipsPerInch / 254;
    case 3:
        return TwipsPerInch / 2540;
    case 4:
        return TwipsPerInch / 100;
    case 5:
        return TwipsPerInch / 1000;
    case 6:
        return 1;
    default:
        return 0;
    }
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

QSizeF metafileWindowTwips(QByteArrayView metafile) {
    QSizeF window;
    double unit = 0;
    MetafileRecords records(metafile);
    while (window.isEmpty() && records.next()) {
        const QByteArrayView parameters = records.parameters();
        const auto length = [parameters](qsizetype at) {
            return double(std::abs(qint16(readU16(parameters, at))));
        };
        if (records.function() == MetafileFunction::SetMapMode)
            unit = twipsOfUnit(readU16(parameters, 0));
        else if (records.function() == MetafileFunction::SetWindowExtent)
            window = {length(2), length(0)}; // the height comes first
    }
    if (window.isEmpty())
        return {};
    if (unit > 0)
        return window * unit;
    window *= TwipsPerPixel;
    return window * std::min(1.0, WidestOnPage / std::max(window.width(), window.height()));
}

} // namespace orvalis::rtf
