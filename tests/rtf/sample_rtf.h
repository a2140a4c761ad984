// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/device_bitmap.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>

namespace orvalis::test {

/// A picture in which each pixel differs, so that turned and mirrored ones are noticed.
inline QImage sampleImage(int width = 4, int height = 3) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(40 * x % 256, 60 * y % 256, (x + y) * 17 % 256));
    return image;
}

inline QByteArray encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A document that uses a little of everything.
inline QByteArray richSample() {
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
           "{\\f1\\fnil\\fcharset2 Symbol;}{\\f2\\fnil\\fcharset128 MS Mincho;}}"
           "{\\colortbl ;\\red255\\green0\\blue0;}{\\*\\generator Sample;}\\viewkind4\\uc1"
           "\\pard\\qc\\cf1\\b\\fs28 Title\\cf0\\b0\\fs20\\par\\pard caf\\'e9 \\u8364? and "
           "{\\f2\\'83V\\'95\\\\} {\\i nested {\\ul deeper}} done\\par"
           "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}"
           "\\fi-360\\li720 item\\par{\\pntext\\f1\\'B7\\tab}other\\par\\pard "
           "{\\field{\\*\\fldinst{HYPERLINK \"http://example.org\"}}{\\fldrslt{link}}}\\line "
           "x\\par "
           "\\trowd\\cellx1000\\cellx2000\\pard\\intbl one\\cell two\\cell\\row\\pard "
           "{\\pict\\pngblip\\picwgoal60\\pichgoal45 " +
           encoded(sampleImage(), "PNG").toHex() +
           "}{\\header skipped}{\\*\\unknown skipped}\\lquote end\\rquote\\par}";
}

} // namespace orvalis::test
