// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// Has text in the Symbol font, or in the free one that files of other systems name for it, shown
/// in a font of letters that has its signs. What systems have in place of these often has them at
/// codes of its own alone, and shows nothing for the characters that they are.
void showSignsInFontsOfLetters();

} // namespace orvalis
