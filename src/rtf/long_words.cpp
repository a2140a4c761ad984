// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/long_words.h"

#include <QChar>

namespace orvalis::rtf {

namespace {

bool isIdeograph(char16_t c) {
    return (c >= 0x3400 && c <= 0x4dbf) || (c >= 0x4e00 && c <= 0x9fff) ||
           (c >= 0xac00 && c <= 0xd7a3);
}

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

} // namespace

bool holdsLongWord(QStringView text) {
    qsizetype start = 0;
    char16_t ahead = 0; // of the blanks that came last
    for (qsizetype at = 1; at < text.size(); ++at) {
        const char16_t before = text[at - 1].unicode();
        const char16_t c = text[at].unicode();
        // A blank behind an opening bracket, or ahead of a sign, may hold both together.
        const bool breaks =
            isBlank(before)
                ? QChar::isLetterOrNumber(ahead) && QChar::isLetterOrNumber(c)
                : before == QChar::LineSeparator || (isIdeograph(before) && isIdeograph(c));
        if (!isBlank(before))
            ahead = before;
        if (breaks)
            start = at;
        else if (at - start >= LongestWord && !isBlank(c))
            return true;
    }
    return false;
}

} // namespace orvalis::rtf
