// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/rtf_output.h"

#include "rtf/code_page.h"

#include <array>
#include <charconv>

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

void appendNumber(QByteArray& out, int number) {
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    out.append(digits.data(), end - digits.data());
}

void appendCode(QByteArray& out, uchar byte) {
    static constexpr char Digits[] = "0123456789abcdef";
    const char code[] = {'\\', '\'', Digits[byte >> 4], Digits[byte & 15]};
    out.append(code, sizeof code);
}

void appendUnicode(QByteArray& out, char16_t unit) {
    out.append("\\u");
    appendNumber(out, qint16(unit));
    out.append('?');
}

} // namespace

void RtfOutput::word(QByteArrayView word, int number) {
    m_bytes.append(word);
    appendNumber(m_bytes, number);
    m_needsDelimiter = true;
}

void RtfOutput::text(QStringView text) {
    const QChar* at = text.data();
    const QChar* const end = at + text.size();
    while (at != end) {
        if (!isPlain(*at)) {
            special((at++)->unicode());
            continue;
        }
        if (m_needsDelimiter && canJoinWord(at->unicode()))
            m_bytes.append(' ');
        m_needsDelimiter = false;
        const QChar* start = at;
        do
            ++at;
        while (at != end && isPlain(*at));
        const qsizetype before = m_bytes.size();
        m_bytes.resize(before + (at - start));
        char* out = m_bytes.data() + before;
        for (; start != at; ++start)
            *out++ = char(start->unicode());
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
    case u'}':
        m_bytes.append('\\').append(char(character));
        return;
    case u'\t':
        word("\\tab");
        return;
    case QChar::LineSeparator:
        word("\\line");
        return;
    case QChar::Nbsp:
        m_bytes.append("\\~");
        return;
    case QChar::SoftHyphen:
        m_bytes.append("\\-");
        return;
    case NonBreakingHyphen:
        m_bytes.append("\\_");
        return;
    default:
        if (const uchar byte = latin1Byte(character); byte >= 0x20)
            appendCode(m_bytes, byte);
        else
            appendUnicode(m_bytes, character);
    }
}

void RtfOutput::code(uchar byte) {
    appendCode(m_bytes, byte);
    m_needsDelimiter = false;
}

void RtfOutput::numbers(QStringView characters) {
    for (const QChar c : characters) {
        if (c == u'\t' || c == QChar::LineSeparator || c == QChar::ObjectReplacementCharacter) {
            text(QStringView(&c, 1));
            continue;
        }
        appendUnicode(m_bytes, c.unicode());
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
        if (byte != 0)
            appendCode(m_bytes, byte);
        else
            appendUnicode(m_bytes, characters[at].unicode());
        at += byte != 0 && isPair;
        m_needsDelimiter = false;
    }
}

} // namespace orvalis::rtf
