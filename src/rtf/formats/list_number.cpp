// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/list_number.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr int LargestRoman = 4999;
constexpr int Letters = 26;

QString romanNumber(int number) {
    static constexpr std::pair<int, QLatin1StringView> Digits[] = {
        {1000, "m"_L1}, {900, "cm"_L1}, {500, "d"_L1}, {400, "cd"_L1}, {100, "c"_L1},
        {90, "xc"_L1},  {50, "l"_L1},   {40, "xl"_L1}, {10, "x"_L1},   {9, "ix"_L1},
        {5, "v"_L1},    {4, "iv"_L1},   {1, "i"_L1}};
    QString text;
    for (const auto& [value, digit] : Digits)
        for (; number >= value; number -= value)
            text += digit;
    return text;
}

QString letterNumber(int number) {
    QString text;
    for (; number > 0; number = (number - 1) / Letters)
        text.prepend(QChar(u'a' + (number - 1) % Letters));
    return text;
}

} // namespace

QString listNumber(ListKind kind, int number) {
    const bool roman = number > 0 && number <= LargestRoman;
    switch (kind) {
    case ListKind::LowerLetter:
        return number > 0 ? letterNumber(number) : QString::number(number);
    case ListKind::UpperLetter:
        return number > 0 ? letterNumber(number).toUpper() : QString::number(number);
    case ListKind::LowerRoman:
        return roman ? romanNumber(number) : QString::number(number);
    case ListKind::UpperRoman:
        return roman ? romanNumber(number).toUpper() : QString::number(number);
    default:
        return QString::number(number);
    }
}

} // namespace orvalis::rtf
