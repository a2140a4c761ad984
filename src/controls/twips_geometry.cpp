// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/twips_geometry.h"

#include "runtime/twips.h"

#include <QVariant>

namespace orvalis {

namespace {
constexpr char twipsProperty[] = "twipsGeometry";
constexpr char pixelsProperty[] = "twipsGeometryPixels";
} // namespace

QRectF twipsGeometry(const QWidget& widget) {
    const QRect pixels = widget.geometry();
    if (widget.property(pixelsProperty).toRect() == pixels) {
        return widget.property(twipsProperty).toRectF();
    }
    return QRectF(QPointF(pixels.topLeft()) * twipsPerPixel, QSizeF(pixels.size()) * twipsPerPixel);
}

void setTwipsGeometry(QWidget& widget, const QRectF& twips) {
    widget.setGeometry(twipsToPixels(twips.left()), twipsToPixels(twips.top()),
                       twipsToPixels(twips.width()), twipsToPixels(twips.height()));
    widget.setProperty(twipsProperty, twips);
    widget.setProperty(pixelsProperty, widget.geometry());
}

} // namespace orvalis
