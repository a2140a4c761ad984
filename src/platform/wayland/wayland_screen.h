// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/display_screen.h"

#include <optional>

namespace orvalis {

/// The first screen of the Wayland display, its size in the compositor's own units.
std::optional<DisplayScreen> waylandScreen();

} // namespace orvalis
