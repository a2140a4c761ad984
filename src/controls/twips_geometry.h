// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QWidget>

namespace orvalis {

/// A control's place in its container in twips: `Left`, `Top`, `Width`, `Height`. It is kept beside
/// the widget's whole pixels, so that scaling loses nothing; a widget moved or resized in pixels
/// since then has the place of its pixels.
QRectF twipsGeometry(const QWidget& widget);

/// Places a control in its container, in twips; the widget takes the nearest whole pixels.
void setTwipsGeometry(QWidget& widget, const QRectF& twips);

} // namespace orvalis
