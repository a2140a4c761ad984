// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/twips_geometry.h"

#include "runtime/twips.h"

#include <QVariant>

namespace orvalis {

namespace {
constexpr char TwipsProperty[] = "twipsGeometry";
constexpr char PixelsProperty[] = "twipsGeometryPixels";
} // namespace

QRectF twipsGeometry(const QWidget& widget) {
    const QRect pixels = widget.geometry();
    if (widget.property(PixelsProperty).toRect() == pixels)
        return widget.property(TwipsProperty).toRectF();
    return QRectF(QPointF(pixels.topLeft()) * TwipsPerPixel, QSizeF(pixels.size()) * TwipsPerPixel);
}

void setTwipsGeometry(QWidget& widget, const QRectF& twips) {
    widget.setGeometry(twipsToPixels(twips.left()), twipsToPixels(twips.top()),
                       twipsToPixels(twips.width()), twipsToPixels(twips.height()));
    widget.setProperty(TwipsProperty, twips);
    widget.setProperty(PixelsProperty, widget.geometry());
}

} // namespace orvalis
