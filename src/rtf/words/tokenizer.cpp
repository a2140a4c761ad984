// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/words/tokenizer.h"

#include "rtf/words/hex.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <limits>

namespace orvalis::rtf {

namespace {

enum ByteClass : uchar { Plain, Structure, LineEnd, Nothing };

constexpr std::array<uchar, 256> ByteClasses = [] {
    std::array<uchar, 256> classes{};
    classes['{'] = classes['}'] = classes['\\'] = Structure;
    classes['\r'] = classes['\n'] = LineEnd;
    classes[0] = Nothing;
    return classes;
}();

constexpr bool isLetter(uchar c) {
    return uchar((c | 0x20) - 'a') < 26;
}
constexpr bool isDigit(uchar c) {
    return uchar(c - '0') < 10;
}

// A longer run of letters is still one word, but no known one.
constexpr int LongestControlWord = 32;

} // namespace

char16_t characterOf(uchar symbol) {
    constexpr char16_t HyphenThatStays = 0x2011;
    switch (symbol) {
    case '~':
        return QChar::Nbsp;
    case '-':
        return QChar::SoftHyphen;
    case '_':
        return HyphenThatStays;
    case '\t':
        return u'\t';
    default:
        return 0;
    }
}

bool isCharacters(const Token& token) {
    switch (token.kind) {
    case TokenKind::Text:
    case TokenKind::Zero:
    case TokenKind::Byte:
        return true;
    case TokenKind::Symbol:
        return characterOf(token.byte) != 0;
    case TokenKind::Word:
        return token.word &&
               (token.word->action == Action::Character || token.word->action == Action::Unicode);
    default:
        return false;
    }
}

bool isBlank(const Token& token) {
    switch (token.kind) {
    case TokenKind::Text:
        return token.bytes.trimmed().isEmpty();
    case TokenKind::Byte:
        return QByteArrayView(&token.byte, 1).trimmed().isEmpty();
    default:
        return token.kind == TokenKind::Zero;
    }
}

bool isLineEnd(const Token& token) {
    return token.kind == TokenKind::Symbol && (token.byte == '\r' || token.byte == '\n');
}

bool isStar(const Token& token) {
    return token.kind == TokenKind::Symbol && token.byte == '*';
}

QByteArray spelled(const Token& word) {
    const QByteArray number = word.hasParameter ? QByteArray::number(word.parameter) : QByteArray();
    return '\\' + word.bytes.toByteArray() + number;
}

char32_t toldCharacter(const Token& word) {
    const int code = word.parameter < 0 ? word.parameter + 0x10000 : word.parameter;
    const bool isNone = code < 0 || code > int(QChar::LastValidCodePoint);
    return isNone ? char32_t(QChar::ReplacementCharacter) : char32_t(code);
}

bool isFigure(const Token& head) {
    const Action action = head.word ? head.word->action : Action::Version;
    return action == Action::PictureGroup ||
           (action == Action::ShapeGroup && head.word->value == int(ShapeKind::Formula));
}

void Tokenizer::next(Token& token) {
    while (m_at != m_end) {
        const uchar c = *m_at;
        switch (ByteClasses[c]) {
        case Structure:
            ++m_at;
            if (c == '\\')
                backslash(token);
            else
                token.kind = c == '{' ? TokenKind::GroupStart : TokenKind::GroupEnd;
            return;
        case LineEnd:
            ++m_at;
            break;
        case Nothing:
            ++m_at;
            token.kind = TokenKind::Zero;
            return;
        default: {
            const uchar* const start = m_at;
            m_at = std::find_if(start + 1, m_end,
                                [](uchar byte) { return ByteClasses[byte] != Plain; });
            token.kind = TokenKind::Text;
            token.bytes = QByteArrayView(start, m_at - start);
            return;
        }
        }
    }
    token.kind = TokenKind::End;
}

void Tokenizer::backslash(Token& token) {
    if (m_at == m_end) {
        token.kind = TokenKind::End;
        return;
    }
    const uchar c = *m_at;
    if (isLetter(c)) {
        word(token);
        return;
    }
    ++m_at;
    switch (c) {
    case '\'': {
        // What is not two hexadecimal digits stands for itself: only the mark is lost.
        const int high = m_at != m_end ? hexDigit(*m_at) : -1;
        const int low = m_end - m_at > 1 ? hexDigit(m_at[1]) : -1;
        if (high < 0 || low < 0) {
            token.kind = TokenKind::Symbol;
            token.byte = c;
            return;
        }
        m_at += 2;
        token.kind = TokenKind::Byte;
        token.byte = uchar(high << 4 | low);
        return;
    }
    case '\\':
    case '{':
    case '}':
        token.kind = TokenKind::Byte;
        token.byte = c;
        return;
    case '\r':
        // "\ CR LF" is one paragraph end, not two.
        if (m_at != m_end && *m_at == '\n')
            ++m_at;
        break;
    default:
        break;
    }
    token.kind = TokenKind::Symbol;
    token.byte = c;
}

void Tokenizer::word(Token& token) {
    const uchar* const start = m_at;
    const uchar* const end = m_end;
    const uchar* at = start;
    quint32 hash = ControlWordHashStart;
    do
        hash = controlWordHash(hash, *at++);
    while (at != end && isLetter(*at));
    const auto length = at - start;

    token.kind = TokenKind::Word;
    token.hasParameter = false;
    token.parameter = 0;
    token.bytes = QByteArrayView(start, length);
    token.word = length <= LongestControlWord ? findControlWord(QByteArrayView(start, length), hash)
                                              : nullptr;

    const bool minus = end - at > 1 && *at == '-' && isDigit(at[1]);
    if (minus)
        ++at;
    if (at != end && isDigit(*at)) {
        qint64 number = 0;
        do {
            // Digits beyond the range of int are read over, so that none is left as text.
            if (number <= std::numeric_limits<int>::max())
                number = number * 10 + (*at - '0');
            ++at;
        } while (at != end && isDigit(*at));
        number = std::min<qint64>(number, std::numeric_limits<int>::max());
        token.hasParameter = true;
        token.parameter = int(minus ? -number : number);
    }
    if (at != end && *at == ' ')
        ++at;
    m_at = at;
    if (token.word && token.word->action == Action::Binary)
        binary(token, token.parameter);
}

void Tokenizer::binary(Token& token, int claimed) {
    const qsizetype wanted = std::max(claimed, 0);
    const qsizetype length = std::min<qsizetype>(wanted, m_end - m_at);
    token.kind = TokenKind::Binary;
    token.binaryCutShort = length < wanted;
    token.bytes = QByteArrayView(m_at, length);
    m_at += length;
}

QByteArrayView Tokenizer::groupAhead() const {
    Tokenizer ahead(*this);
    const bool closed = ahead.skipGroup();
    return {m_at, ahead.m_at - m_at - (closed ? 1 : 0)};
}

bool Tokenizer::hasStructureAhead() const {
    return std::any_of(
        m_at, m_end, [](uchar c) { return ByteClasses[c] == Structure; });
}

bool Tokenizer::closesFurther() const {
    Tokenizer ahead = *this;
    return ahead.skipGroup();
}

bool Tokenizer::skipGroup() {
    qsizetype depth = 1;
    while (m_at != m_end) {
        const uchar c = *m_at++;
        if (ByteClasses[c] != Structure)
            continue;
        if (c == '{') {
            ++depth;
        } else if (c == '}') {
            if (--depth == 0)
                return true;
        } else if (m_at != m_end && isLetter(*m_at)) {
            // Binary data may hold braces, so words have to be read here too.
            Token token;
            word(token);
        } else if (m_at != m_end) {
            ++m_at;
        }
    }
    return false;
}

} // namespace orvalis::rtf
