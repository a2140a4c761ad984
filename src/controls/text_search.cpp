// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/text_search.h"

#include "controls/text_positions.h"

#include <algorithm>

namespace orvalis {
namespace {

bool isWordCharacter(char32_t c) {
    return QChar::isLetterOrNumber(c) || c == U'_';
}

bool wordEndsAt(QStringView plain, qsizetype at) {
    if (at >= plain.size())
        return true;
    const QChar c = plain[at];
    if (c.isHighSurrogate() && at + 1 < plain.size())
        return !isWordCharacter(QChar::surrogateToUcs4(c, plain[at + 1]));
    return !isWordCharacter(c.unicode());
}

bool wordBeginsAt(QStringView plain, qsizetype at) {
    if (at <= 0)
        return true;
    const QChar c = plain[at - 1];
    if (c.isLowSurrogate() && at > 1)
        return !isWordCharacter(QChar::surrogateToUcs4(plain[at - 2], c));
    return !isWordCharacter(c.unicode());
}

} // namespace

qsizetype findInText(QStringView plain, const TextSearch& search, qsizetype start, qsizetype end) {
    const qsizetype size = search.text.size();
    const Qt::CaseSensitivity sensitivity =
        search.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    if (size == 0)
        return -1;
    const QStringView within = plain.left(end);
    for (qsizetype at = within.indexOf(search.text, start, sensitivity); at >= 0;
         at = within.indexOf(search.text, at + 1, sensitivity))
        if (!search.wholeWord || (wordBeginsAt(plain, at) && wordEndsAt(plain, at + size)))
            return at;
    return -1;
}

int findText(const TextPositions& positions, const TextSearch& search, int start, int end) {
    const int size = int(search.text.size());
    end = std::min(end, positions.length());
    if (size == 0 || start > end - size)
        return -1;
    if (positions.hasText())
        return int(findInText(positions.text(), search, start, end));

    // In the middle of many edits the whole text is not at hand, and the next match is near: it is
    // looked for in pieces that grow.
    constexpr int Beside = 2; // what a word's ends are judged by
    int piece = 256 + 2 * size;
    for (int at = start; at <= end - size;) {
        const int from = positions.positionOf(at - Beside);
        const int to = positions.positionOf(std::min(at + piece, end) + Beside);
        const QString plain = positions.between(from, to);
        const int base = positions.indexOf(from);
        const int limit = std::min(at + piece, end);
        const qsizetype found = findInText(plain, search, at - base, limit - base);
        if (found >= 0)
            return base + int(found);
        at = limit - size + 1;
        piece = std::min(piece * 2, 1 << 20);
    }
    return -1;
}

} // namespace orvalis
