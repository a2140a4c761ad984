// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

class TextPositions;

/// What is looked for, and how.
struct TextSearch {
    QString text;
    bool wholeWord = false; ///< no letter, digit or "_" stands beside it
    bool matchCase = false;
};

/// The index of the first match in the plain text that begins at or behind \a start and ends at or
/// before \a end, or -1. An empty text is found nowhere.
int findText(const TextPositions& positions, const TextSearch& search, int start, int end);

/// The same within a plain string.
qsizetype findInText(QStringView plain, const TextSearch& search, qsizetype start, qsizetype end);

} // namespace orvalis
