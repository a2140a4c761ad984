// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/look_words.h"

#include "rtf/formats/stated.h"
#include "rtf/kept/kept_text.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

const char* underlineWord(Underline underline) {
    switch (underline) {
    case Underline::None:
        return "\\ulnone";
    case Underline::Single:
        return "\\ul";
    case Underline::Words:
        return "\\ulw";
    case Underline::Double:
        return "\\uldb";
    case Underline::Dotted:
        return "\\uld";
    case Underline::Dash:
        return "\\uldash";
    case Underline::DashDot:
        return "\\uldashd";
    case Underline::Wave:
        return "\\ulwave";
    case Underline::Thick:
        return "\\ulth";
    case Underline::DashDotDot:
        return "\\uldashdd";
    case Underline::LongDash:
        return "\\ulldash";
    case Underline::ThickDotted:
        return "\\ulthd";
    case Underline::ThickDash:
        return "\\ulthdash";
    case Underline::ThickLongDash:
        return "\\ulthldash";
    case Underline::ThickDashDot:
        return "\\ulthdashd";
    case Underline::ThickDashDotDot:
        return "\\ulthdashdd";
    case Underline::HeavyWave:
        return "\\ulhwave";
    case Underline::Hairline:
        return "\\ulhair";
    case Underline::DoubleWave:
        return "\\ululdbwave";
    }
    return "\\ul";
}

const char* scriptWord(Script script) {
    switch (script) {
    case Script::Super:
        return "\\super";
    case Script::Sub:
        return "\\sub";
    case Script::Normal:
        break;
    }
    return "\\nosupersub";
}

QString keptLook(const CharFormat& format, const Names& names) {
    const bool known = (format.stated & stated::KnowsLook) != 0;
    const auto isStated = [&](int bit) { return known && (format.stated & bit) != 0; };
    QString look = u"\\plain"_s + names.keptAt(format.kept);
    const auto number = [&](const char* word, int value) {
        look += QLatin1StringView(word) + QString::number(value);
    };
    const auto flag = [&](bool on, int bit, const char* word) {
        if (on || isStated(bit))
            look += QLatin1StringView(word) + (on ? QString() : u"0"_s);
    };
    if (format.color != AutomaticColor || isStated(stated::Color))
        look += u"\\cf"_s + keptColor(format.color);
    if (format.highlight != AutomaticColor)
        look += (format.shading ? u"\\chcbpat"_s : u"\\highlight"_s) + keptColor(format.highlight);
    if (format.underline != Underline::None || isStated(stated::Underline))
        look += QLatin1StringView(underlineWord(format.underline));
    flag(format.bold, stated::Bold, "\\b");
    flag(format.italic, stated::Italic, "\\i");
    if (format.doubleStrike)
        number("\\striked", 1);
    else
        flag(format.strike, stated::Strike, "\\strike");
    flag(format.hidden, stated::Hidden, "\\v");
    if (format.capitals != Capitals::AsTyped)
        look += format.capitals == Capitals::Small ? u"\\scaps"_s : u"\\caps"_s;
    if (format.spacing != 0)
        number("\\expndtw", format.spacing);
    if (format.raise != 0)
        number(format.raise < 0 ? "\\dn" : "\\up", std::abs(format.raise));
    if (format.script != Script::Normal)
        look += QLatin1StringView(scriptWord(format.script));
    const bool saysFont = format.stated == 0 || (format.stated & stated::Font) != 0;
    if (saysFont && format.family != NoName)
        look += u"\\f"_s + keptFont(names.familyAt(format.family));
    if (!known || isStated(stated::Size) || format.halfPoints != DefaultHalfPoints)
        number("\\fs", format.halfPoints);
    return look;
}

} // namespace orvalis::rtf
