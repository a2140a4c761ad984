// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/jpeg_size.h"

namespace orvalis::rtf {

namespace {

enum Marker : uchar {
    HuffmanTables = 0xc4,
    FirstFrame = 0xc0,
    Extensions = 0xc8,
    ArithmeticCoding = 0xcc,
    LastFrame = 0xcf,
    Beginning = 0xd8,
    Fill = 0xff,
};

bool isFrame(uchar marker) {
    return marker >= FirstFrame && marker <= LastFrame && marker != HuffmanTables &&
           marker != Extensions && marker != ArithmeticCoding;
}

int readBigU16(QByteArrayView bytes, qsizetype at) {
    return uchar(bytes[at]) << 8 | uchar(bytes[at + 1]);
}

} // namespace

QSize jpegSize(QByteArrayView bytes) {
    constexpr qsizetype MarkerSize = 2;
    constexpr qsizetype HeightAt = 5; // behind the marker, the length and how fine the colours are
    constexpr qsizetype WidthAt = HeightAt + 2;
    if (bytes.size() < MarkerSize || uchar(bytes[0]) != Fill || uchar(bytes[1]) != Beginning)
        return {};
    qsizetype at = MarkerSize;
    while (at + WidthAt + 2 <= bytes.size() && uchar(bytes[at]) == Fill) {
        const uchar marker = uchar(bytes[at + 1]);
        if (marker == Fill) {
            ++at;
            continue;
        }
        if (isFrame(marker))
            return {readBigU16(bytes, at + WidthAt), readBigU16(bytes, at + HeightAt)};
        at += MarkerSize + readBigU16(bytes, at + MarkerSize);
    }
    return {};
}

} // namespace orvalis::rtf
