// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextFormat>

namespace orvalis::rtf {

/// Of a character format (bool): the marks in this run stand for control characters. Documents
/// cannot hold these as they are: a lone CR or LF would break the line, and the others would be
/// there unseen. A mark outside such a run is a character that somebody typed.
inline constexpr int ControlMarks = QTextFormat::UserProperty + 0x5180;

namespace marks {
/// The mark of a code is the Braille cell that shows its bits; of code 0, whose cell would be
/// empty, the full one.
inline constexpr char16_t Cells = 0x2800;
inline constexpr char16_t Zero = 0x28FF;
} // namespace marks

/// Whether a document can hold the character only through a mark. A tab is no such character; CR
/// and LF are when they stand alone.
constexpr bool needsMark(char16_t c) {
    return (c < 0x20 && c != u'\t') || (c >= 0x7F && c < 0xA0);
}

constexpr bool isMark(char16_t c) {
    return c == marks::Zero || (c > marks::Cells && c < marks::Zero &&
                                needsMark(static_cast<char16_t>(c - marks::Cells)));
}

/// The mark of a character that needs one.
constexpr char16_t markOf(char16_t code) {
    return code == 0 ? marks::Zero : static_cast<char16_t>(marks::Cells + code);
}

/// The character that a mark stands for.
constexpr char16_t codeOf(char16_t mark) {
    return mark == marks::Zero ? u'\0' : static_cast<char16_t>(mark - marks::Cells);
}

} // namespace orvalis::rtf
