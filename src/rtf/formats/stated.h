// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

/// What the words of a file state. Styles and lists tell what they leave out, so that a usual value
/// that is said is not one that is left unsaid; where there are none, the two are one.
///
/// The reader and the writer ask here, and so agree: what is written of a document is what counts
/// in it when it is read again.
namespace orvalis::rtf::stated {

/// Of characters, as bits of CharFormat::stated.
inline constexpr int Font = 1 << 0;
inline constexpr int Size = 1 << 1;
inline constexpr int Color = 1 << 2;
inline constexpr int Highlight = 1 << 3;
inline constexpr int Bold = 1 << 4;
inline constexpr int Italic = 1 << 5;
inline constexpr int Strike = 1 << 6;
inline constexpr int Underline = 1 << 7;
inline constexpr int Script = 1 << 8;
inline constexpr int Raise = 1 << 9;
inline constexpr int Capitals = 1 << 10;
inline constexpr int Spacing = 1 << 11;
inline constexpr int Hidden = 1 << 12;
inline constexpr int All = (1 << 13) - 1;
/// Whether anything is known of the font, and of the others.
inline constexpr int KnowsFont = 1 << 16;
inline constexpr int KnowsLook = 1 << 17;
inline constexpr int Knows = KnowsFont | KnowsLook;

/// Of paragraphs, as bits of ParagraphFormat::stated.
inline constexpr int Alignment = 1 << 0;
inline constexpr int Direction = 1 << 1;
inline constexpr int PageBreak = 1 << 2;
inline constexpr int Left = 1 << 3;
inline constexpr int First = 1 << 4;
inline constexpr int Right = 1 << 5;
inline constexpr int Before = 1 << 6;
inline constexpr int After = 1 << 7;
inline constexpr int LineSpacing = 1 << 8;

/// The bits of characters that count in a file, with those for what is known by that.
int countedOfCharacters(bool hasStyles, DefaultFont defaultFont);
/// The same of paragraphs, \p inLists where list tables may tell their indents.
int countedOfParagraphs(bool hasStyles, bool inLists);

/// What the words for a format state: what is said of what counts, and all that is not as usual.
/// \param usualFamily of text that names none.
int by(const CharFormat& format, int counted, int usualFamily);
int by(const ParagraphFormat& format, int counted);

/// In what two formats look different.
int differences(const CharFormat& a, const CharFormat& b);

/// What the words for a format leave unsaid, as it must be told apart from what is said.
/// \param stated by it.
int leftOut(int stated);

} // namespace orvalis::rtf::stated
