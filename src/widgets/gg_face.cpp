// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/gg_face.h"

#include "widgets/gg_layout.h"

#include <QFontMetrics>
#include <QPainter>

namespace orvalis {

namespace {

constexpr ColourValue White = 0xFFFFFF;
constexpr ColourValue DarkShadow3DColour = systemColour(0x15);
constexpr ColourValue Light3DColour = systemColour(0x16);
constexpr qreal DisabledOpacity = 0.45;

Shade shadeOf(ColourValue value) {
    const QColor colour = toQColor(value);
    return {colour.red(), colour.green(), colour.blue()};
}

QColor colourOf(const Shade& shade) {
    return {shade.red, shade.green, shade.blue};
}

void paintGradient(QPainter& painter, const GGFace& face) {
    const int width = face.size.width();
    const int height = face.size.height();
    const bool rows = face.orientation == 0;
    if (!face.gradient || (!rows && face.orientation != 1))
        return;
    const auto shades = gradientShades(shadeOf(face.from), shadeOf(face.to), rows ? height : width);
    int at = 1;
    for (const Shade& shade : shades) {
        painter.fillRect(rows ? QRect(0, at, width, 1) : QRect(at, 0, 1, height), colourOf(shade));
        ++at;
    }
}

/// One ring of a frame, a pixel wide, just inside \a area.
void paintRing(QPainter& painter, const QRect& area, ColourValue topLeft, ColourValue bottomRight) {
    painter.fillRect(area.left(), area.top(), area.width(), 1, toQColor(topLeft));
    painter.fillRect(area.left(), area.top(), 1, area.height(), toQColor(topLeft));
    painter.fillRect(area.left(), area.bottom(), area.width(), 1, toQColor(bottomRight));
    painter.fillRect(area.right(), area.top(), 1, area.height(), toQColor(bottomRight));
}

} // namespace

GGEdge edgeOfState(int state, ColourValue backColor, bool alwaysShowBorder) {
    if (state == 2)
        return {ButtonShadowColour, White};
    if (state == 1 || alwaysShowBorder)
        return {White, ButtonShadowColour};
    return {backColor, backColor};
}

void paintFace(QPainter& painter, const GGFace& face) {
    painter.fillRect(QRect(QPoint(), face.size), toQColor(face.backColor));
    paintGradient(painter, face);
    painter.save();
    painter.setFont(face.font);
    painter.setPen(toQColor(face.foreColor));
    if (!face.enabled)
        painter.setOpacity(DisabledOpacity);
    const QRect box(face.captionAt, QFontMetrics(face.font).size(0, face.caption));
    painter.drawText(box, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, face.caption);
    painter.restore();
}

void paintEdge(QPainter& painter, const QSize& face, const GGEdge& edge, const QPalette& palette) {
    const int right = face.width() - 1;
    const int bottom = face.height() - 1;
    const QColor light = toQColor(edge.light, palette);
    const QColor dark = toQColor(edge.dark, palette);
    painter.fillRect(QRect(0, 0, 1, face.height()), light);
    painter.fillRect(QRect(0, 0, face.width(), 1), light);
    painter.fillRect(QRect(right, 0, 1, face.height()), dark);
    painter.fillRect(QRect(0, bottom, face.width(), 1), dark);
}

int frameWidthOf(quint32 exStyle) {
    return (exStyle & DialogFrameStyle ? 3 : 0) + (exStyle & ClientEdgeStyle ? 2 : 0) +
           (exStyle & StaticEdgeStyle ? 1 : 0);
}

void paintFrame(QPainter& painter, const QSize& whole, quint32 exStyle) {
    QRect area(QPoint(), whole);
    const auto ring = [&](ColourValue topLeft, ColourValue bottomRight) {
        paintRing(painter, area, topLeft, bottomRight);
        area.adjust(1, 1, -1, -1);
    };
    if (exStyle & DialogFrameStyle) {
        ring(Light3DColour, DarkShadow3DColour);
        ring(Highlight3DColour, ButtonShadowColour);
        ring(ButtonFaceColour, ButtonFaceColour);
    }
    if (exStyle & ClientEdgeStyle) {
        ring(ButtonShadowColour, Highlight3DColour);
        ring(DarkShadow3DColour, Light3DColour);
    }
    if (exStyle & StaticEdgeStyle)
        ring(ButtonShadowColour, Highlight3DColour);
}

} // namespace orvalis
