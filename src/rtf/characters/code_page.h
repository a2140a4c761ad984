// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/symbol_font.h"

#include <QByteArrayView>
#include <QString>

#include <array>
#include <memory>

namespace orvalis::rtf {

inline constexpr int Latin1Page = 1252;
inline constexpr int Utf8Page = 65001;
/// Not a page of Windows' own: the codes of its Symbol font.
inline constexpr int SymbolPage = 42;

/// Turns bytes of one code page into text.
///
/// Pages of single bytes are tables. The others are decoded in runs by the system's converter.
class CodePage {
public:
    using Table = std::array<char16_t, 256>;

    /// The page of a number of Windows; a number that stands for none gives code page 1252. The
    /// object lives as long as its thread.
    static const CodePage& forNumber(int number);
    /// The page of an \fcharset number, null where the document's own page holds.
    static const CodePage* forCharset(int charset);
    /// The codes of a font of signs.
    static const CodePage& forSymbols(SymbolFont font);

    ~CodePage();
    /// The font of signs that the codes are those of.
    SymbolFont symbols() const { return m_symbols; }
    /// Null for a page whose characters may take several bytes, or several units of text.
    const Table* table() const { return m_table.get(); }
    /// Decodes what is complete. Bytes that mean nothing become U+FFFD.
    /// \returns how many bytes were taken: all, but for the beginning of a character at the end.
    qsizetype decode(QByteArrayView bytes, QString& text) const;

private:
    struct Converter;
    explicit CodePage(int number);
    explicit CodePage(SymbolFont font);
    void fillTable(int number);

    SymbolFont m_symbols = SymbolFont::None;
    std::unique_ptr<Table> m_table;
    std::unique_ptr<Converter> m_converter;
};

/// The byte of a character in code page 1252; 0 for a character that it has not, and for U+0000.
uchar latin1Byte(char16_t character);

} // namespace orvalis::rtf
