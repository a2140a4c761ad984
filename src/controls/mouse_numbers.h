// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

namespace orvalis {

constexpr int LeftButton = 1;
constexpr int RightButton = 2;

/// The number by which mouse events name a button: 1 left, 2 right, 4 middle, 0 none or another.
int buttonNumber(Qt::MouseButton button);

/// The button of a number as buttonNumber() gives it.
Qt::MouseButton mouseButton(int number);

/// The numbers of all buttons held, added up.
int buttonNumbers(Qt::MouseButtons buttons);

/// The number by which mouse events tell the keys held: 1 shift, 2 control, 4 alt, added up.
int shiftNumber(Qt::KeyboardModifiers modifiers);

} // namespace orvalis
