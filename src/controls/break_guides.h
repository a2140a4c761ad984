// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace orvalis {

/// A character without a width that makes lines break as word processors break them, or keeps them
/// from it, where the rules for text in general say otherwise.
struct BreakGuide {
    int position = 0; ///< in the text, of the character that it goes ahead of
    char16_t sign = 0;

    bool operator==(const BreakGuide&) const = default;
};

/// The guides of a paragraph, in their order. An address that fits into a line stays whole, so
/// nothing breaks at its slashes, nor at the hyphens ahead of the last of them. A path breaks
/// behind its backslashes, never ahead of one; and numbers break behind the hyphen that joins them.
std::vector<BreakGuide> breakGuides(const QString& text);

} // namespace orvalis
