// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace orvalis::rtf {

/// The longest word that is kept together where it can be. For each line of a word that is longer
/// than a line, Qt's layout goes through all that is left of the word.
inline constexpr qsizetype LongestWord = 2048;

/// Where a word ends that begins at \a start, with the blanks behind it: the next place where a
/// line can be broken for certain, behind blanks between letters or digits, behind line breaks, and
/// between the characters of scripts that need no blanks.
qsizetype wordEnd(QStringView text, qsizetype start);

/// Whether a text may hold more characters in a row than LongestWord between which no line can be
/// broken.
bool holdsLongWord(QStringView text);

} // namespace orvalis::rtf
