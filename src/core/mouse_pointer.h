// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// The pointer of the whole screen, by its usual numbers.
namespace MousePointer {
inline constexpr int Default = 0;
inline constexpr int Hourglass = 11;
} // namespace MousePointer

/// Sets the pointer that all of the program's windows show. Setting the hourglass twice needs only
/// one setting back.
void setMousePointer(int pointer);

} // namespace orvalis
