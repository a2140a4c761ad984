// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/mouse_numbers.h"

namespace orvalis {

int buttonNumber(Qt::MouseButton button) {
    return buttonNumbers(button);
}

Qt::MouseButton mouseButton(int number) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttonNumber(button) == number)
            return button;
    return Qt::NoButton;
}

int buttonNumbers(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0) +
           (buttons & Qt::MiddleButton ? 4 : 0);
}

int shiftNumber(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

} // namespace orvalis
