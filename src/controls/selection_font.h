// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

class CommonDialog;
class RichTextBox;

/// Flags of every font dialog of the program: screen and printer fonts, with the effects.
constexpr int FontDialogFlags = 259;

/// Loads the dialog from the box's selection: italic, bold, name, size, strikethrough, underline,
/// colour, in this order.
/// \throws RuntimeError InvalidUseOfNull at the first that is mixed in the selection.
void loadFontFromSelection(CommonDialog& dialog, const RichTextBox& box);

/// Writes the seven back to the selection.
void applyFontToSelection(const CommonDialog& dialog, RichTextBox& box);

} // namespace orvalis
