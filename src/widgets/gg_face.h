// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/colour.h"

#include <QFont>
#include <QPoint>
#include <QSize>
#include <QString>

class QPainter;

namespace orvalis {

/// What a button's face shows: all that one painting of it needs, as it was when it was painted.
struct GGFace {
    QSize size;
    ColourValue backColor = ButtonFaceColour;
    bool gradient = false;
    /// 0 from top to bottom, 1 from left to right; any other draws none.
    int orientation = 0;
    ColourValue from = 0;
    ColourValue to = 0;
    QString caption;
    QPoint captionAt;
    QFont font;
    ColourValue foreColor = ButtonTextColour;
    bool enabled = true;
};

/// The two colours of a button's edge: light on the left and the top, dark on the right and the
/// bottom of a raised one.
struct GGEdge {
    ColourValue light = 0;
    ColourValue dark = 0;
};

/// The edge of a state: 0 none, which wipes it with \a backColor; 1 raised; 2 sunken.
GGEdge edgeOfState(int state, ColourValue backColor, bool alwaysShowBorder);

/// Paints background, gradient and caption, in this order, from the painter's origin. Each row or
/// column of the gradient is one logical pixel; the first stays in the background colour.
void paintFace(QPainter& painter, const GGFace& face);

/// Paints the one-pixel edge of a face: left, top, right, bottom, so that the dark sides take the
/// corners they share with the light ones.
void paintEdge(QPainter& painter, const QSize& face, const GGEdge& edge, const QPalette& palette);

/// The width of the frame that an extended window style draws round a control.
int frameWidthOf(quint32 exStyle);

/// Paints that frame along the inside of a control's whole area.
void paintFrame(QPainter& painter, const QSize& whole, quint32 exStyle);

/// Extended window styles that draw a frame.
constexpr quint32 DialogFrameStyle = 0x1;
constexpr quint32 ClientEdgeStyle = 0x200;
constexpr quint32 StaticEdgeStyle = 0x20000;

} // namespace orvalis
