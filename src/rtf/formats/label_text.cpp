// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/label_text.h"

#include "rtf/characters/bullet_sign.h"
#include "rtf/formats/list_formats.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvalis::rtf {

namespace {

// What is longer is text that a program has put there by mistake.
constexpr qsizetype LongestLabel = 60;

int romanValue(const QString& text) {
    static constexpr std::pair<char16_t, int> Digits[] = {
        {u'm', 1000}, {u'd', 500}, {u'c', 100}, {u'l', 50}, {u'x', 10}, {u'v', 5}, {u'i', 1}};
    int value = 0;
    int largest = 0;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const char16_t letter = text[i].toLower().unicode();
        const auto* digit = std::find_if(std::begin(Digits), std::end(Digits),
                                         [&](const auto& known) { return known.first == letter; });
        if (digit == std::end(Digits))
            return 0;
        value += digit->second < largest ? -digit->second : digit->second;
        largest = std::max(largest, digit->second);
    }
    return value;
}

// The label whose number is a word of it; kind None where the word is no number.
ListLabel labelOfWord(const QString& label, qsizetype start, qsizetype end, ListKind previous) {
    const QString word = label.mid(start, end - start);
    ListLabel result;
    result.prefix = cleanLabel(label.first(start));
    result.suffix = cleanLabel(label.mid(end));
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (isNumber && number >= 0 && number <= LargestListStart) {
        result.kind = ListKind::Decimal;
        result.start = number;
        return result;
    }
    // A word alone is a bullet that happens to be a letter.
    if (word.isEmpty() || word.size() == label.size())
        return result;
    const bool upper = word.front().isUpper();
    const int roman = romanValue(word);
    const bool wasRoman = previous == ListKind::LowerRoman || previous == ListKind::UpperRoman;
    const char16_t letter = word.front().toLower().unicode();
    if (roman > 0 && roman <= LargestListStart && (word.size() > 1 || roman == 1 || wasRoman)) {
        result.kind = upper ? ListKind::UpperRoman : ListKind::LowerRoman;
        result.start = roman;
    } else if (word.size() == 1 && letter >= u'a' && letter <= u'z') {
        result.kind = upper ? ListKind::UpperLetter : ListKind::LowerLetter;
        result.start = letter - u'a' + 1;
    }
    return result;
}

} // namespace

ListLabel labelFromText(const QString& text, SymbolFont font, ListKind previous) {
    const QString label = text.trimmed();
    if (label.isEmpty() || label.size() > LongestLabel)
        return {};
    const auto isSign = [](QChar c) { return !c.isLetterOrNumber(); };
    // The number is nearly always the first word, but that of "Chapter 1" or "Step a)" is the last.
    const auto first = std::find_if_not(label.begin(), label.end(), isSign);
    const auto firstEnd = std::find_if(first, label.end(), isSign);
    const auto lastEnd = std::find_if_not(label.rbegin(), label.rend(), isSign).base();
    const auto last =
        std::find_if(std::make_reverse_iterator(lastEnd), label.rend(), isSign).base();
    for (const auto& [start, end] : {std::pair(first, firstEnd), std::pair(last, lastEnd)}) {
        ListLabel numbered =
            labelOfWord(label, start - label.begin(), end - label.begin(), previous);
        numbered.source = ListSource::Text;
        numbered.showsStart = true;
        if (start < end && numbered.kind != ListKind::None)
            return numbered;
    }
    ListLabel bullet;
    bullet.kind = ListKind::Bullet;
    bullet.source = ListSource::Text;
    bullet.prefix = bulletSign(label, font);
    return bullet;
}

bool isToldByText(const ListLabel& label, int number, ListKind previous) {
    const ListLabel read = labelFromText(labelText(label, number), SymbolFont::None, previous);
    return read.kind == label.kind && read.prefix == label.prefix && read.suffix == label.suffix &&
           (label.kind == ListKind::Bullet || read.start == number);
}

} // namespace orvalis::rtf
