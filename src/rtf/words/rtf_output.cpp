// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/words/rtf_output.h"

#include "rtf/characters/code_page.h"

#include <array>
#include <charconv>
#include <utility>

namespace orvalis::rtf {

namespace {

constexpr char16_t NonBreakingHyphen = 0x2011;

constexpr bool canJoinWord(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'-' || c == u' ';
}

// What stands for itself in the file.
constexpr auto PlainCharacters = [] {
    std::array<bool, 128> plain{};
    for (size_t c = 0x20; c < 0x7f; ++c)
        plain[c] = c != '\\' && c != '{' && c != '}';
    return plain;
}();

bool isPlain(QChar character) {
    const char16_t c = character.unicode();
    return c < PlainCharacters.size() && PlainCharacters[c];
}

} // namespace

QByteArray RtfOutput::take() {
    m_bytes.truncate(m_size);
    return std::move(m_bytes);
}

void RtfOutput::reserve(qsizetype size) {
    m_bytes.resize(std::max(size, m_size));
}

void RtfOutput::appendNumber(int number) {
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    append(QByteArrayView(digits.data(), end));
}

void RtfOutput::appendCode(uchar byte) {
    static constexpr char Digits[] = "0123456789abcdef";
    const char code[] = {'\\', '\'', Digits[byte >> 4], Digits[byte & 15]};
    append(QByteArrayView(code, sizeof code));
}

void RtfOutput::appendUnicode(char16_t unit) {
    append("\\u");
    appendNumber(qint16(unit));
    append("?");
}

void RtfOutput::word(QByteArrayView word, int number) {
    append(word);
    appendNumber(number);
    m_needsDelimiter = true;
}

void RtfOutput::endWordAhead(QChar next) {
    if (m_needsDelimiter && canJoinWord(next.unicode()))
        append(" ");
    m_needsDelimiter = false;
}

void RtfOutput::text(QStringView text) {
    const QChar* at = text.data();
    const QChar* const end = at + text.size();
    while (at != end) {
        if (!isPlain(*at)) {
            special((at++)->unicode());
            continue;
        }
        endWordAhead(*at);
        char* out = room(end - at);
        do
            *out++ = char((at++)->unicode());
        while (at != end && isPlain(*at));
        m_size -= end - at;
    }
}

void RtfOutput::special(char16_t character) {
    // Nothing is written for it, so that the word ahead still needs its end.
    if (character == QChar::ObjectReplacementCharacter)
        return;
    m_needsDelimiter = false;
    switch (character) {
    case u'\\':
    case u'{':
    case u'}': {
        const char escaped[] = {'\\', char(character)};
        append(QByteArrayView(escaped, sizeof escaped));
        return;
    }
    case u'\t':
        word("\\tab");
        return;
    case QChar::LineSeparator:
        word("\\line");
        return;
    case QChar::Nbsp:
        append("\\~");
        return;
    case QChar::SoftHyphen:
        append("\\-");
        return;
    case NonBreakingHyphen:
        append("\\_");
        return;
    default:
        if (const uchar byte = latin1Byte(character); byte >= 0x20)
            appendCode(byte);
        else
            appendUnicode(character);
    }
}

void RtfOutput::code(uchar byte) {
    appendCode(byte);
    m_needsDelimiter = false;
}

void RtfOutput::numbers(QStringView characters) {
    for (const QChar c : characters) {
        if (c == u' ' || c == u'\t' || c == QChar::LineSeparator ||
            c == QChar::ObjectReplacementCharacter) {
            text(QStringView(&c, 1));
            continue;
        }
        appendUnicode(c.unicode());
        m_needsDelimiter = false;
    }
}

void RtfOutput::symbols(SymbolFont font, QStringView characters) {
    // What the font does not have by a byte keeps its own code, which no table touches.
    for (qsizetype at = 0; at < characters.size(); ++at) {
        const QStringView pair = characters.mid(at, 2);
        const bool isPair =
            pair.size() == 2 && pair[0].isHighSurrogate() && pair[1].isLowSurrogate();
        const char32_t c =
            isPair ? QChar::surrogateToUcs4(pair[0], pair[1]) : characters[at].unicode();
        const uchar byte = symbolByte(font, c);
        if (byte == ' ' || c == u'\t' || c == QChar::LineSeparator ||
            c == QChar::ObjectReplacementCharacter) {
            text(characters.mid(at, 1));
            continue;
        }
        if (byte != 0 || c < u' ')
            appendCode(byte != 0 ? byte : uchar(c));
        else
            appendUnicode(characters[at].unicode());
        at += byte != 0 && isPair;
        m_needsDelimiter = false;
    }
}

} // namespace orvalis::rtf
