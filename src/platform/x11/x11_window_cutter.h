// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window_cutter.h"

#include <QImage>
#include <QList>
#include <QRect>

namespace orvalis {

/// Cuts windows by the X server's own shapes: a widget's mask knows logical pixels alone, and would
/// be jagged at every scale but the whole ones. Does nothing but on an X11 display.
class X11WindowCutter final : public WindowCutter {
public:
    bool isNeeded() const override;
    void cut(QWidget& window, const QImage& picture) override;
};

/// The rectangles that cover every pixel of the picture that is more than half opaque, from the
/// first such pixel of a row to its last, rows that are alike in one; in pixels of the picture.
QList<QRect> opaqueRows(const QImage& picture);

} // namespace orvalis
