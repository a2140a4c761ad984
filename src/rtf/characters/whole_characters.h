// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace orvalis::rtf {

/// Whether a character stands in a line as it is: those below a blank are nothing in it, and some a
/// document takes for structure of its own.
constexpr bool standsInLine(char16_t character) {
    return character >= u' ' && character != QChar::LineSeparator &&
           character != QChar::ParagraphSeparator && character != 0xfdd0 && character != 0xfdd1 &&
           character != QChar::ObjectReplacementCharacter;
}

/// The text with the sign for what is no character in place of each half of one.
inline QString wholeCharacters(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                             characters.size());
}

} // namespace orvalis::rtf
