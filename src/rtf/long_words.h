// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace orvalis::rtf {

/// The longest word that is kept together where it can be. For each line of a word that is longer
/// than a line, Qt's layout goes through all that is left of the word.
inline constexpr qsizetype LongestWord = 2048;

/// Whether a text may hold more characters in a row than LongestWord between which no line can be
/// broken. Only the places count where a line can be broken for certain: blanks between letters or
/// digits, line breaks, and between the characters of scripts that need no blanks.
bool holdsLongWord(QStringView text);

} // namespace orvalis::rtf
