// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// Whether the desktop mixes windows with what lies below them, so that a window's transparent
/// pixels show it. Where it doesn't they show black, and a window needs a shape instead. It may
/// change while the program runs.
bool desktopComposites();

} // namespace orvalis
