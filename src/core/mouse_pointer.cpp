// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/mouse_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace orvalis {

void setMousePointer(int pointer) {
    while (QGuiApplication::overrideCursor() != nullptr)
        QGuiApplication::restoreOverrideCursor();
    if (pointer == MousePointer::Hourglass)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

} // namespace orvalis
