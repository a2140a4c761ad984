// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/display_screen.h"

#include <optional>

namespace orvalis {

/// The primary screen of the X11 display, its factor from the desktop's resolution. The connection
/// stays open: a server whose last client leaves starts anew, and Qt would wait for it.
std::optional<DisplayScreen> x11Screen();

/// Closes the connection of x11Screen().
void releaseX11Screen();

} // namespace orvalis
