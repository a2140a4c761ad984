// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/bullet_sign.h"

namespace orvalis::rtf {

namespace {

constexpr char32_t Dot = 0x2022;
// Outside a font of signs, too, it is the code that such a font has its dot at.
constexpr char32_t MiddleDot = 0xb7;
constexpr char32_t FirstSignCode = 0x21;
constexpr char32_t LastCode = 0xff;

// The arrow head of Wingdings, and what looks like it and is in far more fonts.
constexpr char32_t LateArrowHead = 0x2b9a;
constexpr char32_t ArrowHead = 0x27a2;

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
    if (sign == LateArrowHead)
        sign = ArrowHead;
    const bool isUsual = sign == Dot || sign == MiddleDot;
    if (isUsual || isRare(sign) || !QChar::isPrint(sign))
        return {};
    return QString(QChar(char16_t(sign)));
}

} // namespace orvalis::rtf
