// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/symbol_font.h"

#include "rtf/characters/dingbats.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

// Codes without a glyph that Unicode knows stay apart from all text.
constexpr char16_t PrivateArea = 0xf000;

constexpr char16_t Lower[] = u" !\u2200#\u2203%&\u220b()\u2217+,\u2212./0123456789:;<=>?"
                             u"\u2245\u0391\u0392\u03a7\u0394\u0395\u03a6\u0393\u0397\u0399"
                             u"\u03d1\u039a\u039b\u039c\u039d\u039f\u03a0\u0398\u03a1\u03a3"
                             u"\u03a4\u03a5\u03c2\u03a9\u039e\u03a8\u0396[\u2234]\u22a5_"
                             u"\uf8e5\u03b1\u03b2\u03c7\u03b4\u03b5\u03c6\u03b3\u03b7\u03b9"
                             u"\u03d5\u03ba\u03bb\u03bc\u03bd\u03bf\u03c0\u03b8\u03c1\u03c3"
                             u"\u03c4\u03c5\u03d6\u03c9\u03be\u03c8\u03b6{|}\u223c";
constexpr char16_t Upper[] = u"\u20ac\u03d2\u2032\u2264\u2044\u221e\u0192\u2663\u2666\u2665"
                             u"\u2660\u2194\u2190\u2191\u2192\u2193\u00b0\u00b1\u2033\u2265"
                             u"\u00d7\u221d\u2202\u2022\u00f7\u2260\u2261\u2248\u2026\u23d0"
                             u"\u23af\u21b5\u2135\u2111\u211c\u2118\u2297\u2295\u2205\u2229"
                             u"\u222a\u2283\u2287\u2284\u2282\u2286\u2208\u2209\u2220\u2207"
                             u"\u00ae\u00a9\u2122\u220f\u221a\u22c5\u00ac\u2227\u2228\u21d4"
                             u"\u21d0\u21d1\u21d2\u21d3\u25ca\u2329\uf8e8\uf8e9\uf8ea\u2211"
                             u"\u239b\u239c\u239d\u23a1\u23a2\u23a3\u23a7\u23a8\u23a9\u23aa"
                             u"\uf8ff\u232a\u222b\u2320\u23ae\u2321\u239e\u239f\u23a0\u23a4"
                             u"\u23a5\u23a6\u23ab\u23ac\u23ad";
constexpr int LowerStart = 0x20;
constexpr int UpperStart = 0xa0;
static_assert(std::size(Lower) - 1 == 0x7f - LowerStart);
static_assert(std::size(Upper) - 1 == 0xff - UpperStart);

constexpr std::array<char32_t, 256> SymbolCharacters = [] {
    std::array<char32_t, 256> table{};
    for (size_t code = 0; code < table.size(); ++code)
        table[code] = code < LowerStart ? char32_t(code) : char32_t(PrivateArea + code);
    for (size_t i = 0; i + 1 < std::size(Lower); ++i)
        table[LowerStart + i] = Lower[i];
    for (size_t i = 0; i + 1 < std::size(Upper); ++i)
        table[UpperStart + i] = Upper[i];
    return table;
}();

/// The signs of a font by its codes; null for the Symbol font, which has a table of its own.
const dingbats::Signs* signsOf(SymbolFont font) {
    switch (font) {
    case SymbolFont::Wingdings:
        return &dingbats::Wingdings;
    case SymbolFont::Wingdings2:
        return &dingbats::Wingdings2;
    case SymbolFont::Wingdings3:
        return &dingbats::Wingdings3;
    case SymbolFont::Webdings:
        return &dingbats::Webdings;
    case SymbolFont::None:
    case SymbolFont::Symbol:
        break;
    }
    return nullptr;
}

constexpr std::pair<QLatin1StringView, SymbolFont> Families[] = {
    {"Symbol"_L1, SymbolFont::Symbol},          {"Standard Symbols L"_L1, SymbolFont::Symbol},
    {"Wingdings"_L1, SymbolFont::Wingdings},    {"Wingdings 2"_L1, SymbolFont::Wingdings2},
    {"Wingdings 3"_L1, SymbolFont::Wingdings3}, {"Webdings"_L1, SymbolFont::Webdings},
};

} // namespace

bool isSymbolFamily(const QString& family) {
    return symbolFontOf(family) != SymbolFont::None ||
           family.compare("Marlett"_L1, Qt::CaseInsensitive) == 0;
}

SymbolFont symbolFontOf(const QString& family) {
    for (const auto& [name, font] : Families)
        if (family.compare(name, Qt::CaseInsensitive) == 0)
            return font;
    return SymbolFont::None;
}

char32_t symbolCharacter(SymbolFont font, uchar byte) {
    const dingbats::Signs* const signs = signsOf(font);
    if (!signs || byte < dingbats::FirstCode)
        return SymbolCharacters[byte];
    const char32_t sign = (*signs)[byte - dingbats::FirstCode];
    return sign != 0 ? sign : char32_t(PrivateArea + byte);
}

QString inSigns(SymbolFont font, const QString& text) {
    constexpr char16_t FirstSign = 0x21;
    constexpr char16_t LastSign = 0xff;
    QString signs;
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        const bool isCode = code >= FirstSign && code <= LastSign;
        const char32_t sign = isCode ? symbolCharacter(font, uchar(code)) : code;
        // A sign that Unicode does not have shows as the letter.
        if (font == SymbolFont::None || privateByte(sign) != 0)
            signs += c;
        else
            signs += QChar::fromUcs4(sign);
    }
    return signs;
}

uchar symbolByte(SymbolFont font, char32_t character) {
    const dingbats::Signs* const signs = signsOf(font);
    if (!signs) {
        const auto* const end = SymbolCharacters.end();
        const auto* const found = std::find(SymbolCharacters.begin() + LowerStart, end, character);
        return found == end ? uchar(0) : uchar(found - SymbolCharacters.begin());
    }
    if (const uchar byte = privateByte(character))
        return (*signs)[byte - dingbats::FirstCode] == 0 ? byte : uchar(0);
    const auto* const found = std::find(signs->begin(), signs->end(), character);
    return found == signs->end() ? uchar(0) : uchar(found - signs->begin() + dingbats::FirstCode);
}

bool isToldByNumber(SymbolFont font, char32_t character) {
    return character > u' ' && character != QChar::LineSeparator &&
           symbolByte(font, character) == 0;
}

bool isLetterAmongSigns(char32_t character) {
    const bool breaksLine =
        character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
    return character > u' ' && !breaksLine && privateByte(character) == 0;
}

} // namespace orvalis::rtf
