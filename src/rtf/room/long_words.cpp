// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/long_words.h"

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

qsizetype wordEnd(QStringView text, qsizetype start) {
    char16_t ahead = 0; // of the blanks that came last
    for (qsizetype at = start + 1; at < text.size(); ++at) {
        const char16_t before = text[at - 1].unicode();
        const char16_t c = text[at].unicode();
        // A blank behind an opening bracket, or ahead of a sign, may hold both together.
        const bool breaks =
            isBlank(before)
                ? QChar::isLetterOrNumber(ahead) && QChar::isLetterOrNumber(c)
                : before == QChar::LineSeparator || (isIdeograph(before) && isIdeograph(c));
        if (breaks)
            return at;
        if (!isBlank(before))
            ahead = before;
    }
    return text.size();
}

bool holdsLongWord(QStringView text) {
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = wordEnd(text, start);
        qsizetype last = end - 1;
        while (last > start && isBlank(text[last].unicode()))
            --last;
        if (last - start >= LongestWord)
            return true;
        start = end;
    }
    return false;
}

} // namespace orvalis::rtf
