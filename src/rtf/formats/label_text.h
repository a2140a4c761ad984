// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/symbol_font.h"
#include "rtf/formats/formats.h"

namespace orvalis::rtf {

/// What a literal label, as \pntext has it, says about the list; kind None for no label at all.
/// \param previous kind of the list before it, which tells a roman "i." from the letter.
/// \param font with signs that shows the label, where it is one of these.
ListLabel labelFromText(const QString& text, SymbolFont font, ListKind previous);

/// Whether the text of an item's label, as the document shows it, says what the label is.
bool isToldByText(const ListLabel& label, int number, ListKind previous);

} // namespace orvalis::rtf
