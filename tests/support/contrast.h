// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvalis::test {

/// What a text needs against its ground to be read well.
inline constexpr double ReadableContrast = 4.5;

/// The relative luminance of a colour, 0 for black to 1 for white.
inline double luminance(QRgb colour) {
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

/// The ratio of two luminances, 1 to 21.
inline double contrast(double one, double other) {
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// A part of a window, drawn so large that the strokes of its letters have pixels of their full
/// ink.
inline QImage drawnLarge(QWidget& window, const QRect& part) {
    constexpr int Ratio = 4;
    QImage image(part.size() * Ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(Ratio);
    image.fill(Qt::white);
    window.render(&image, QPoint(), QRegion(part),
                  QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return image;
}

/// The same of a control inside its window, on the ground that it has there.
inline QImage drawnLarge(QWidget& control) {
    QWidget& window = *control.window();
    return drawnLarge(window, QRect(control.mapTo(&window, QPoint()), control.size()));
}

/// The contrast of a text with the ground on which it stands: measured from the picture's pixels,
/// of which more than half are ground. Where the ground is a gradient its worst part counts.
inline double textContrast(const QImage& picture) {
    std::vector<double> all;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            all.push_back(luminance(picture.pixel(x, y)));
    std::sort(all.begin(), all.end());
    const double ground = all[all.size() / 2];
    const bool darkInk = contrast(all.front(), ground) > contrast(all.back(), ground);
    const double ink = darkInk ? all.front() : all.back();
    const double between = (ink + ground) / 2;
    // Towards the ink the edges of letters are mixed of both, at this size a small part of all.
    constexpr double EdgePart = 0.15;
    std::vector<double> grounds;
    for (const double one : all)
        if (darkInk ? one > between : one < between)
            grounds.push_back(one);
    if (grounds.empty())
        return 1; // nothing is drawn
    if (!darkInk)
        std::reverse(grounds.begin(), grounds.end());
    return contrast(ink, grounds[static_cast<std::size_t>(grounds.size() * EdgePart)]);
}

} // namespace orvalis::test
