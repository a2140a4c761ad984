// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/interpreter.h"
#include "rtf/words/kept_word_table.h"

#include <algorithm>
#include <utility>

namespace orvalis::rtf {

namespace {

constexpr int OfSides = stated::Font | stated::Size | stated::Bold | stated::Italic;

/// The words that tell of the other direction, and the bits of what they tell.
struct SideWord {
    const ControlWord* word;
    int bit;
};

const ControlWord* wordOf(const char* name) {
    return std::find_if(
        KeptWordTable.begin(), KeptWordTable.end(),
        [&](const ControlWord& word) { return QByteArrayView(word.name) == name; });
}

const std::array<SideWord, 4>& sideWords() {
    static const std::array<SideWord, 4> words{{{wordOf("af"), stated::Font},
                                                {wordOf("afs"), stated::Size},
                                                {wordOf("ab"), stated::Bold},
                                                {wordOf("ai"), stated::Italic}}};
    return words;
}

int bitOf(const ControlWord* word) {
    for (const SideWord& known : sideWords())
        if (known.word == word)
            return known.bit;
    return 0;
}

} // namespace

/// Where font, size, weight and style are told for each direction apart, text that turns takes up
/// those of its own.
void Interpreter::turn(bool rightToLeft) {
    m_state.named = true;
    const bool turns = std::exchange(m_state.rightToLeft, rightToLeft) != rightToLeft;
    if (!m_state.parted)
        return;
    if (turns) {
        CharFormat& chars = m_state.chars;
        const Side next = std::exchange(m_state.other, thisSide());
        chars.halfPoints = next.halfPoints;
        chars.bold = next.bold;
        chars.italic = next.italic;
        chars.stated = (chars.stated & ~OfSides) | next.stated;
        m_state.said = next.said;
        if (std::exchange(m_state.font, next.font) != next.font)
            selectFont();
        setEastern(namesFont() ? next.eastern : nullptr);
    }
    tellOther();
}

Side Interpreter::thisSide() const {
    const CharFormat& chars = m_state.chars;
    return {m_state.font,    chars.halfPoints,       chars.bold,  chars.italic,
            m_state.eastern, chars.stated & OfSides, m_state.said};
}

void Interpreter::sayOfSide(int bit) {
    if (m_state.parted)
        m_state.said |= bit;
}

/// In the one form in which the word is written; false where it says nothing.
bool Interpreter::saysOfSide(KeptCall& call) {
    const int bit = bitOf(call.word);
    if (bit == stated::Size)
        call.number =
            call.number > 0 ? std::min(call.number, LargestHalfPoints) : DefaultHalfPoints;
    const bool isOff = call.hasNumber && call.number == 0;
    if (bit == stated::Bold || bit == stated::Italic)
        call = {call.word, call.side, isOff};
    return bit != stated::Size || call.hasNumber;
}

/// A word for text of the direction that was named last; where none was, for all text. What came
/// ahead of the first such word holds for both: many files tell nothing apart.
bool Interpreter::sideWord(const KeptCall& call) {
    const int bit = bitOf(call.word);
    if (bit == 0)
        return false;
    if (bit == stated::Font && !call.hasNumber)
        return true;
    if (m_state.named && !std::exchange(m_state.parted, true))
        m_state.other = thisSide();
    CharFormat& chars = m_state.chars;
    const bool on = !call.hasNumber || call.number != 0;
    if (bit == stated::Font) {
        m_state.font = call.number;
        selectFont();
        keepScript();
    } else if (bit == stated::Size) {
        chars.halfPoints = call.number;
    } else if (bit == stated::Bold) {
        chars.bold = on;
    } else if (bit == stated::Italic) {
        chars.italic = on;
    }
    chars.stated |= bit & m_countedOfCharacters;
    sayOfSide(bit);
    return true;
}

/// Keeps what was told of the other direction with the text of this one.
void Interpreter::tellOther() {
    const Side& other = m_state.other;
    Side& told = m_state.told;
    const FontTable::Font* font = m_fonts.find(other.font);
    const int family = font ? font->family : NoName;
    const int said = family == NoName ? other.said & ~stated::Font : other.said;
    const int same = (family == told.font ? stated::Font : 0) |
                     (other.halfPoints == told.halfPoints ? stated::Size : 0) |
                     (other.bold == told.bold ? stated::Bold : 0) |
                     (other.italic == told.italic ? stated::Italic : 0);
    const int changed = (said ^ told.said) | (said & ~same);
    told = {family, other.halfPoints, other.bold, other.italic, nullptr, 0, said};
    if (changed == 0)
        return;
    for (const auto& [word, bit] : sideWords()) {
        if ((changed & bit) == 0)
            continue;
        KeptCall call{word, nullptr};
        call.removes = (said & bit) == 0;
        call.hasNumber = bit == stated::Font || bit == stated::Size;
        call.number = bit == stated::Font ? family : other.halfPoints;
        if ((bit == stated::Bold && !other.bold) || (bit == stated::Italic && !other.italic))
            call = {word, nullptr, true, 0, call.removes};
        keepCharacters(m_kept.with(m_state.keptOfChars, call));
    }
}

} // namespace orvalis::rtf
