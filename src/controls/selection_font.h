// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

class CommonDialog;
class RichTextBox;

/// Flags of every font dialog of the program: screen and printer fonts, with the effects.
constexpr int FontDialogFlags = 259;

/// The Font command of a box: the dialog comes up with the font of the selection, which takes what
/// is chosen there. Cancel, and any other failure, ends it silently. A mixed selection cannot be
/// loaded: the dialog comes up all the same, and what is chosen there is not applied.
/// \returns whether the selection took a font.
bool chooseFontOfSelection(CommonDialog& dialog, RichTextBox& box);

/// The Font command of a box that passes over each failure: what can be read of a mixed selection
/// is loaded, and after Cancel what was loaded is written back. A property that could not be read
/// and was not chosen in the dialog stays as it is.
void chooseFontPassingOver(CommonDialog& dialog, RichTextBox& box);

/// Loads the dialog from the box's selection: italic, bold, name, size, strikethrough, underline,
/// colour, in this order.
/// \throws RuntimeError InvalidUseOfNull at the first that is mixed in the selection.
void loadFontFromSelection(CommonDialog& dialog, const RichTextBox& box);

/// Writes the seven back to the selection.
void applyFontToSelection(const CommonDialog& dialog, RichTextBox& box);

} // namespace orvalis
