// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QKeyEvent;
class QKeySequence;
class QWidget;

namespace orvalis {

class GGCommand;

/// Lets a key of a window do something, wherever in the window the focus is. Its lines must be
/// there already, for they would take some keys for themselves.
void onKey(QWidget& window, const QKeySequence& key, const std::function<void()>& command);

/// The same for a skinned button, which answers no key itself: the key presses it while it shows
/// and is enabled.
void pressOnKey(QWidget& window, const QKeySequence& key, GGCommand& button);

/// Whether a key alone, without Shift and its like, is Enter, that of the number pad too.
bool isEnter(const QKeyEvent& event);

} // namespace orvalis
