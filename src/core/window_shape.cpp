// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/window_shape.h"

#include "platform/compositing.h"
#include "platform/window_cut.h"
#include "skin/skin.h"

#include <QWidget>

namespace orvalis {

void wearShape(QWidget& window, const QString& picture) {
    cutWindow(window,
              desktopComposites()
                  ? QImage()
                  : skin::pixmap(picture, window.size(), window.devicePixelRatioF()).toImage());
}

} // namespace orvalis
