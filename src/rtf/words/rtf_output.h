// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/symbol_font.h"

#include <QByteArray>
#include <QStringView>

#include <algorithm>

namespace orvalis::rtf {

/// RTF in the making: control words, and text in the letters that they leave free.
///
/// It knows whether a word stands at the end, and sets the blank between it and a text that would
/// be read as part of it.
class RtfOutput {
public:
    /// \param word with its backslash; whatever stands before it, a brace say, may come along.
    void word(QByteArrayView word) {
        append(word);
        m_needsDelimiter = true;
    }
    void word(QByteArrayView word, int number);
    /// Appends what no text can join: braces, whole groups, line ends.
    void structure(QByteArrayView bytes) {
        append(bytes);
        m_needsDelimiter = false;
    }
    /// Parts a word that stands at the end from what follows by structure() and begins like this.
    void endWordAhead(QChar next);
    /// Text in code page 1252, with \u for the rest.
    void text(QStringView text);
    /// Text as the numbers that Unicode gives its characters, but blanks, which every font has.
    void numbers(QStringView text);
    /// Text of a font of signs, in that font's own bytes.
    void symbols(SymbolFont font, QStringView text);
    /// A byte by its code.
    void code(uchar byte);

    QByteArrayView bytes() const { return QByteArrayView(m_bytes).first(m_size); }
    /// Gives the bytes away; nothing may follow.
    QByteArray take();
    void reserve(qsizetype size);

private:
    void special(char16_t character);
    void append(QByteArrayView bytes) { std::copy(bytes.begin(), bytes.end(), room(bytes.size())); }
    /// Where further bytes go, which are counted already.
    char* room(qsizetype size) {
        if (m_bytes.size() - m_size < size)
            reserve(m_size + std::max(m_size, size));
        m_size += size;
        return m_bytes.data() + m_size - size;
    }
    void appendNumber(int number);
    void appendCode(uchar byte);
    void appendUnicode(char16_t unit);

    QByteArray m_bytes; ///< with those that are still free
    qsizetype m_size = 0;
    bool m_needsDelimiter = false;
};

} // namespace orvalis::rtf
