// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/picture_box.h"

#include "rtf/picture_image.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double largestRasterTwips = 2 * twipsPerInch;
constexpr double unknownTwips = twipsPerInch;

// Two pixels for each that is shown keep the lines sharp where a screen has twice as many.
constexpr double fineness = 2;
constexpr double longestSide = 512;
constexpr int bitsPerPixel = 32;

constexpr QRgb paper = qRgb(255, 255, 255);
constexpr QRgb ink = qRgb(160, 160, 160);

QSize rasterSize(QSizeF shown, qint64 mostPixels) {
    const double side = std::max(shown.width(), shown.height());
    const double bits = double(std::max<qint64>(mostPixels, 1)) * bitsPerPixel;
    // A box is at most a square of its longer side.
    const double longest = std::min({side * fineness, longestSide, std::sqrt(bits)});
    const QSizeF size = side > 0 ? shown * (longest / side) : QSizeF(longest, longest);
    return size.toSize().expandedTo({1, 1});
}

} // namespace

QSizeF boxTwips(const Picture& picture) {
    const QSizeF shown = shownTwips(picture);
    if (shown.isEmpty())
        return {unknownTwips, unknownTwips};
    const PictureKind kind = kindOfBytes(picture.bytes);
    const bool drawing = kind == PictureKind::Wmf || kind == PictureKind::Emf;
    if (drawing || !wantedTwips(picture).isEmpty())
        return shown;
    return shown * std::min(1.0, largestRasterTwips / std::max(shown.width(), shown.height()));
}

QImage emptyBox(QSizeF shown, qint64 mostPixels) {
    const QSize size = rasterSize(shown, mostPixels);
    QImage box(size, QImage::Format_RGB32);
    box.fill(paper);
    {
        QPainter painter(&box);
        const double width = std::max(1.0, size.width() / std::max(shown.width(), 1.0));
        painter.setPen(QPen(QColor(ink), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        const QRectF frame =
            QRectF(box.rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
        painter.drawRect(frame);
        painter.drawLine(frame.topLeft(), frame.bottomRight());
        painter.drawLine(frame.bottomLeft(), frame.topRight());
    }
    return box.convertToFormat(QImage::Format_Mono, QList<QRgb>{paper, ink}, Qt::ThresholdDither);
}

} // namespace orvalis::rtf
