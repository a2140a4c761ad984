// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/control_words.h"

#include <QByteArray>
#include <QByteArrayView>

namespace orvalis::rtf {

enum class TokenKind : quint8 {
    End,
    GroupStart,
    GroupEnd,
    Text,   ///< bytes as they stand, neither line ends nor zeros among them
    Zero,   ///< a zero byte
    Byte,   ///< one byte, from \'hh or an escaped brace or backslash
    Word,   ///< a control word
    Symbol, ///< a backslash and one character that is no letter
    Binary, ///< the bytes of \bin
};

/// One piece of RTF. Which members count depends on the kind.
struct Token {
    TokenKind kind = TokenKind::End;
    uchar byte = 0;                    ///< of Byte and Symbol
    bool hasParameter = false;         ///< of Word
    bool binaryCutShort = false;       ///< of Binary: it claimed more than there is
    int parameter = 0;                 ///< of Word, held to the range of int
    const ControlWord* word = nullptr; ///< of Word; null for one that nobody knows
    QByteArrayView bytes;              ///< of Text and Binary; the name of a Word
};

/// Whether the token stands for characters, where it stands in text.
bool isCharacters(const Token& token);
/// The character that a symbol stands for, 0 for none.
char16_t characterOf(uchar symbol);
/// Whether the token is blanks alone, which nothing stands in between.
bool isBlank(const Token& token);
/// Whether the token is a line end behind a backslash, which ends a paragraph.
bool isLineEnd(const Token& token);
/// Whether the token marks a group that readers who do not know it pass over.
bool isStar(const Token& token);

/// A word with its number, as files have it.
QByteArray spelled(const Token& word);

/// The character that a word for one by its number tells. Above 32767 they are told below zero, by
/// old rules; a number that stands for none tells the sign for that.
char32_t toldCharacter(const Token& word);

/// Whether a group with this head holds a picture or a formula, whose words are none of the text.
bool isFigure(const Token& head);

/// Cuts bytes into tokens. It copies nothing, and never reads past the end.
class Tokenizer {
public:
    explicit Tokenizer(QByteArrayView bytes)
        : m_begin(reinterpret_cast<const uchar*>(bytes.data()))
        , m_at(m_begin)
        , m_end(m_begin + bytes.size()) {}

    void next(Token& token);
    /// Passes over everything up to and with the brace that closes the group one stands in.
    /// \returns whether there was such a brace.
    bool skipGroup();
    /// Whether a brace is ahead that closes more than is opened from here on.
    bool closesFurther() const;
    /// What skipGroup() would pass over, without the brace that closes the group.
    QByteArrayView groupAhead() const;
    /// Passes over that: the brace comes next.
    void skipToGroupEnd() { m_at += groupAhead().size(); }
    /// Whether any brace or backslash is left.
    bool hasStructureAhead() const;
    qsizetype position() const { return m_at - m_begin; }

private:
    void backslash(Token& token);
    void word(Token& token);
    void binary(Token& token, int claimed);

    const uchar* m_begin;
    const uchar* m_at;
    const uchar* m_end;
};

} // namespace orvalis::rtf
