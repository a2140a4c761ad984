// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/ink.h"

#include <QWidget>

namespace orvalis::skin {

void setInk(QWidget& widget, QRgb ink, QPalette::ColorRole role) {
    QPalette palette = widget.palette();
    palette.setColor(role, QColor::fromRgba(ink));
    widget.setPalette(palette);
}

} // namespace orvalis::skin
