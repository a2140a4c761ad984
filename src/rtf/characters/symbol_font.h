// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// The fonts with signs where others have letters, whose signs Unicode knows.
enum class SymbolFont : quint8 { None, Symbol, Wingdings, Wingdings2, Wingdings3, Webdings };

/// Whether a font of this name has pictures where others have letters, so that its text is kept in
/// bytes of its own.
bool isSymbolFamily(const QString& family);

/// Which of those it is whose pictures are characters that Unicode knows.
SymbolFont symbolFontOf(const QString& family);

/// What a font shows for a byte, as a character that every font may show; one of the area for
/// private use where Unicode has none.
char32_t symbolCharacter(SymbolFont font, uchar byte);

/// Letters as a font shows them: the signs of those that it has signs for.
QString inSigns(SymbolFont font, const QString& text);

/// The byte at which a font shows a character, 0 when it does not.
uchar symbolByte(SymbolFont font, char32_t character);
/// Whether a font of signs lacks a character, so that text in it tells that by its number.
bool isToldByNumber(SymbolFont font, char32_t character);

/// Whether a character is a letter to a font of signs, and none that a word stands for in any font,
/// nor the byte of a sign.
bool isLetterAmongSigns(char32_t character);

/// The byte that a character of the area for private use tells, as word processors write symbols;
/// 0 for every other character.
constexpr uchar privateByte(char32_t character) {
    return character > 0xf020 && character <= 0xf0ff ? uchar(character & 0xff) : uchar(0);
}

} // namespace orvalis::rtf
