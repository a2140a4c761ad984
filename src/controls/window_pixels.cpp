// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/window_pixels.h"

#include <QBackingStore>
#include <QWidget>
#include <QWindow>

namespace orvalis {

void showPixelsAgain(const QWidget& widget) {
    const QWidget& window = *widget.window();
    QBackingStore* pixels = window.backingStore();
    if (pixels != nullptr && window.windowHandle() != nullptr && window.windowHandle()->isExposed())
        pixels->flush(window.rect());
}

} // namespace orvalis
