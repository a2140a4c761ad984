// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/break_guides.h"

namespace orvalis {
namespace {

/// Forbids a break, and is in more fonts than what is there for nothing else.
constexpr char16_t Joiner = 0x200d;
constexpr char16_t PlaceToBreak = 0x200b;

/// Whether a character looks alike with a joiner ahead of it, which letters of other scripts do
/// not.
bool standsAlone(QChar c) {
    const QChar::Script script = c.script();
    return c.isDigit() || script == QChar::Script_Latin || script == QChar::Script_Greek ||
           script == QChar::Script_Cyrillic;
}

} // namespace

std::vector<BreakGuide> breakGuides(const QString& text) {
    std::vector<BreakGuide> guides;
    const auto add = [&](int position, char16_t sign) {
        if (guides.empty() || guides.back().position < position)
            guides.push_back({position, sign});
    };
    const int size = int(text.size());
    int wordStart = 0;
    int wordEnd = 0;
    int lastSlash = -1;
    for (int at = 0; at + 1 < size; ++at) {
        const QChar here = text[at];
        const QChar next = text[at + 1];
        if (here.isSpace())
            continue;
        if (at >= wordEnd) {
            wordStart = at;
            while (wordEnd <= at || (wordEnd < size && !text[wordEnd].isSpace()))
                ++wordEnd;
            const QStringView word = QStringView(text).sliced(wordStart, wordEnd - wordStart);
            lastSlash = wordStart + int(word.lastIndexOf(u'/'));
        }
        const bool ofAddress = here == u'/' || (here == u'-' && at < lastSlash);
        if (ofAddress && standsAlone(next)) {
            add(at + 1, Joiner);
        } else if (here == u'-' && at > wordStart && text[at - 1].isLetterOrNumber() &&
                   next.isDigit()) {
            add(at + 1, PlaceToBreak);
        } else if (here == u'\\') {
            if (at > wordStart)
                add(at, Joiner);
            if (standsAlone(next))
                add(at + 1, PlaceToBreak);
        }
    }
    return guides;
}

} // namespace orvalis
