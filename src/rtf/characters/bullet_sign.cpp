// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/bullet_sign.h"

#include <algorithm>
#include <utility>

namespace orvalis::rtf {

namespace {

constexpr char32_t Dot = 0x2022;
// Outside a font of signs, too, it is the code that such a font has its dot at.
constexpr char32_t MiddleDot = 0xb7;
constexpr char32_t FirstSignCode = 0x21;
constexpr char32_t LastCode = 0xff;

// Signs of Wingdings that few fonts have, and what looks like them and is in far more.
constexpr std::pair<char32_t, char32_t> LookAlikes[] = {
    {0x2b9a, 0x27a2}, {0x1f78e, 0x25a1}, {0x1f78f, 0x25a1}, {0x1f790, 0x25a1}, {0x2b1d, 0x25aa},
    {0x2b29, 0x25c6}, {0x2b58, 0x25cb},  {0x1f786, 0x25cb}, {0x1f5f7, 0x2612}, {0x1f5f9, 0x2611},
};

char32_t lookAlike(char32_t sign) {
    const auto* const found = std::find_if(std::begin(LookAlikes), std::end(LookAlikes),
                                           [&](const auto& alike) { return alike.first == sign; });
    return found == std::end(LookAlikes) ? sign : found->second;
}

// Few fonts have what Unicode took in late for the fonts of signs.
bool isRare(char32_t sign) {
    constexpr char32_t FirstOfLateSigns = 0x2b00;
    constexpr char32_t LastOfLateSigns = 0x2bff;
    constexpr char32_t FirstOfPrivateArea = 0xe000;
    return sign >= FirstOfPrivateArea || (sign >= FirstOfLateSigns && sign <= LastOfLateSigns);
}

} // namespace

QString bulletSign(const QString& label, SymbolFont font) {
    const QString text = label.trimmed();
    if (text.size() != 1)
        return {};
    char32_t sign = text.front().unicode();
    const uchar byte = privateByte(sign);
    if (font != SymbolFont::None && (byte || (sign >= FirstSignCode && sign <= LastCode)))
        sign = symbolCharacter(font, byte ? byte : uchar(sign));
    sign = lookAlike(sign);
    const bool isUsual = sign == Dot || sign == MiddleDot;
    if (isUsual || isRare(sign) || !QChar::isPrint(sign))
        return {};
    return QString(QChar(char16_t(sign)));
}

} // namespace orvalis::rtf
