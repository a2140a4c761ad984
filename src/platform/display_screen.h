// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSizeF>

namespace orvalis {

/// A primary screen as the display server tells it.
struct DisplayScreen {
    QByteArray name;
    QSizeF size;       // in the server's units
    double factor = 1; // units of the server to one that the desktop asks programs to draw
};

} // namespace orvalis
