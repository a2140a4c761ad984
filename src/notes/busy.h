// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/mouse_pointer.h"

#include <QWidget>

namespace orvalis {

/// While a command works that can take long: the pointer is the hourglass, and the window is
/// painted where a dialog lay over it.
class Busy {
public:
    explicit Busy(QWidget& window) {
        setMousePointer(MousePointer::Hourglass);
        window.repaint();
    }
    ~Busy() { setMousePointer(MousePointer::Default); }
    Q_DISABLE_COPY_MOVE(Busy)
};

} // namespace orvalis
