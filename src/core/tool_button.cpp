// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/tool_button.h"

#include "core/window_keys.h"

#include <QKeyEvent>

namespace orvalis {

void ToolButton::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event) && !event->isAutoRepeat())
        click();
    else
        QToolButton::keyPressEvent(event);
}

} // namespace orvalis
