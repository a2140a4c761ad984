// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace orvalis {

/// Sends to the screen once more what was painted of a widget's window last, for a handler that
/// holds the thread: where another window has lain over it meanwhile it would stay blank till then.
/// Nothing is painted for it, and no event of any kind is handled.
void showPixelsAgain(const QWidget& widget);

} // namespace orvalis
