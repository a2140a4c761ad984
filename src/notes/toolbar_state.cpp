// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/toolbar_state.h"

#include <cmath>

namespace orvalis {

namespace {

constexpr int LastAlignment = 2;
constexpr double TwipsPerMillimetre = 1440 / 25.4;

} // namespace

FormatButtons adjusted(const FormatButtons& before, const SelectionFormat& selection) {
    if (!selection.bold || !selection.italic || !selection.underline)
        return before;
    FormatButtons buttons = before;
    buttons.bold = *selection.bold;
    buttons.italic = *selection.italic;
    buttons.underline = *selection.underline;
    // A justified paragraph has no button either.
    if (selection.alignment && *selection.alignment <= LastAlignment)
        buttons.alignment = *selection.alignment;
    buttons.bullets = selection.bullet.value_or(before.bullets);
    return buttons;
}

int shiftedIndent(int twips, int millimetres) {
    return static_cast<int>(std::lround(twips + millimetres * TwipsPerMillimetre));
}

} // namespace orvalis
