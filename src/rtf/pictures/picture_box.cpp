// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/picture_box.h"

#include "rtf/pictures/picture_image.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double LargestRasterTwips = 2 * TwipsPerInch;
constexpr double UnknownTwips = TwipsPerInch;

// Two pixels for each that is shown keep the lines sharp where a screen has twice as many.
constexpr double Fineness = 2;
constexpr double LongestSide = 512;
constexpr int RasterBits = 32;

constexpr QRgb Paper = qRgb(255, 255, 255);
constexpr QRgb Ink = qRgb(160, 160, 160);

QSize rasterSize(QSizeF shown, qint64 mostPixels) {
    const double side = std::max(shown.width(), shown.height());
    const double bits = double(std::max<qint64>(mostPixels, 1)) * RasterBits;
    // A box is at most a square of its longer side.
    const double longest = std::min({side * Fineness, LongestSide, std::sqrt(bits)});
    const QSizeF size = side > 0 ? shown * (longest / side) : QSizeF(longest, longest);
    return size.toSize().expandedTo({1, 1});
}

} // namespace

QSizeF boxTwips(const Picture& picture) {
    const QSizeF shown = shownTwips(picture);
    if (shown.isEmpty())
        return {UnknownTwips, UnknownTwips};
    if (isMetafile(kindOfBytes(picture.bytes)) || !wantedTwips(picture).isEmpty())
        return shown;
    return shown * std::min(1.0, LargestRasterTwips / std::max(shown.width(), shown.height()));
}

QImage emptyBox(QSizeF shown, qint64 mostPixels) {
    const QSize size = rasterSize(shown, mostPixels);
    QImage box(size, QImage::Format_Mono);
    box.setColorTable({Paper, Ink});
    box.fill(0);
    QPainter painter(&box);
    // A line as wide as one pixel that is shown may fall between the pixels of the screen.
    const double ratio = size.width() / std::max(shown.width(), 1.0);
    const int width = ratio > 1 ? qCeil(ratio) + 1 : 1;
    painter.setPen(QPen(QColor(Ink), width));
    painter.drawLine(QLineF(0, 0, size.width(), size.height()));
    painter.drawLine(QLineF(0, size.height(), size.width(), 0));
    for (const QRect& side : {QRect(0, 0, size.width(), width), QRect(0, 0, width, size.height()),
                              QRect(0, size.height() - width, size.width(), width),
                              QRect(size.width() - width, 0, width, size.height())})
        painter.fillRect(side, QColor(Ink));
    return box;
}

} // namespace orvalis::rtf
