// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/symbol_field.h"

#include "rtf/characters/code_page.h"
#include "rtf/characters/symbol_font.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr uint FirstCode = 0x20;
constexpr uint Codes = 0x100;

QString unicodeText(uint code) {
    const bool isHalf = code >= 0xd800 && code <= 0xdfff;
    return isHalf || code > 0xfffd ? QString() : QString(QChar(char16_t(code)));
}

} // namespace

QString symbolFieldText(const QString& instruction) {
    static const QRegularExpression symbol(
        u"^\\s*SYMBOL\\s+(0x[0-9a-f]{1,4}|\\d{1,5})(?![^\\s\\\\])"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression font(u"\\\\f\\s*(?:\"([^\"]*)\"|([^\\s\"\\\\]+))"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression unicode(u"\\\\u(?![a-z])"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = symbol.match(instruction);
    if (!match.hasMatch())
        return {};
    const QString number = match.captured(1);
    const bool isHexadecimal = number.startsWith("0x"_L1, Qt::CaseInsensitive);
    const uint code = isHexadecimal ? number.sliced(2).toUInt(nullptr, 16) : number.toUInt();
    if (code < FirstCode)
        return {};
    const QRegularExpressionMatch named = font.match(instruction);
    const SymbolFont signs = symbolFontOf(named.captured(1) + named.captured(2));
    const uchar byte = code < Codes ? uchar(code) : privateByte(code);
    QString text;
    if (signs != SymbolFont::None && byte != 0)
        return text.append(QChar::fromUcs4(symbolCharacter(signs, byte)));
    if (code >= Codes || unicode.match(instruction).hasMatch())
        return unicodeText(code);
    const char single = char(code);
    CodePage::forNumber(Latin1Page).decode(QByteArrayView(&single, 1), text);
    return text;
}

} // namespace orvalis::rtf
