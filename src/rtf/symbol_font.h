// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// Whether a font of this name has pictures where others have letters, so that its text is kept in
/// bytes of its own.
bool isSymbolFamily(const QString& family);

/// Whether it is the one of them whose pictures are characters that Unicode knows.
bool isSymbolFont(const QString& family);

/// What the Symbol font shows for a byte, as a character that every font may show.
char16_t symbolCharacter(uchar byte);

/// The byte at which the Symbol font shows a character, 0 when it does not.
uchar symbolByte(char16_t character);

} // namespace orvalis::rtf
