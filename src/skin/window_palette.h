// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace orvalis::skin {

/// The colours of every window, independent of the desktop's theme.
QPalette windowPalette();

} // namespace orvalis::skin
