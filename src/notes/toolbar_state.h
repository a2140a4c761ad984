// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace orvalis {

/// The format of a selection as far as buttons show it; what is mixed has no value.
struct SelectionFormat {
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<int> alignment; ///< 0 left, 1 right, 2 centre
    std::optional<bool> bullet;
};

/// Which of the formatting buttons are down.
struct FormatButtons {
    int alignment = 0; ///< of the three that release one another: 0 left, 1 right, 2 centre
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool bullets = false;

    bool operator==(const FormatButtons&) const = default;
};

/// Which of the editing buttons can be pressed.
struct EditButtons {
    bool cut = false;
    bool copy = false;
    bool paste = false;
    bool undo = false;

    bool operator==(const EditButtons&) const = default;
};

/// The buttons as the selection wants them. Where bold, italic or underline is mixed all buttons
/// stay as they were; a mixed alignment or bullet leaves its own.
FormatButtons adjusted(const FormatButtons& before, const SelectionFormat& selection);

/// An indent moved by whole millimetres, in twips. It may go below nothing.
int shiftedIndent(int twips, int millimetres);

} // namespace orvalis
