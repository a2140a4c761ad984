// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/text_formats.h"

#include "rtf/control_marks.h"
#include "rtf/format_properties.h"
#include "rtf/format_readers.h"

#include <QBrush>
#include <QFont>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double HalfPointsPerPoint = 2.0;
// Per cent of the usual distance; 0 would mean the usual one.
constexpr double NarrowestSpacing = 1;

QTextCharFormat::UnderlineStyle shownUnderline(Underline underline) {
    switch (underline) {
    case Underline::None:
        return QTextCharFormat::NoUnderline;
    case Underline::Dotted:
        return QTextCharFormat::DotLine;
    case Underline::Dash:
        return QTextCharFormat::DashUnderline;
    case Underline::DashDot:
        return QTextCharFormat::DashDotLine;
    case Underline::Wave:
        return QTextCharFormat::WaveUnderline;
    default:
        return QTextCharFormat::SingleUnderline;
    }
}

Underline underlineOf(const QTextCharFormat& format) {
    switch (format.underlineStyle()) {
    case QTextCharFormat::NoUnderline:
        return Underline::None;
    case QTextCharFormat::DotLine:
        return Underline::Dotted;
    case QTextCharFormat::DashUnderline:
        return Underline::Dash;
    case QTextCharFormat::DashDotLine:
    case QTextCharFormat::DashDotDotLine:
        return Underline::DashDot;
    case QTextCharFormat::WaveUnderline:
    case QTextCharFormat::SpellCheckUnderline:
        return Underline::Wave;
    case QTextCharFormat::SingleUnderline:
        break;
    }
    const auto kept = static_cast<Underline>(format.intProperty(UnderlineKind));
    const bool shownAsSingle =
        kept == Underline::Words || kept == Underline::Double || kept == Underline::Thick;
    return shownAsSingle ? kept : Underline::Single;
}

} // namespace

QTextCharFormat textFormat(const CharFormat& format, const Names& names) {
    QTextCharFormat text;
    if (format.family != NoName)
        text.setFontFamilies({names.familyAt(format.family)});
    text.setFontPointSize(format.halfPoints / HalfPointsPerPoint);
    text.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    text.setFontItalic(format.italic);
    text.setFontStrikeOut(format.strike);
    if (format.controlMarks)
        text.setProperty(ControlMarks, true);
    text.setUnderlineStyle(shownUnderline(format.underline));
    if (format.underline == Underline::Words || format.underline == Underline::Double ||
        format.underline == Underline::Thick)
        text.setProperty(UnderlineKind, int(format.underline));
    if (format.color != AutomaticColor)
        text.setForeground(QColor::fromRgb(format.color));
    if (format.highlight != AutomaticColor)
        text.setBackground(QColor::fromRgb(format.highlight));
    if (format.script != Script::Normal)
        text.setVerticalAlignment(format.script == Script::Super ? QTextCharFormat::AlignSuperScript
                                                                 : QTextCharFormat::AlignSubScript);
    if (format.raise != 0)
        text.setBaselineOffset(100.0 * format.raise / format.halfPoints);
    if (format.capitals != Capitals::AsTyped)
        text.setFontCapitalization(format.capitals == Capitals::All ? QFont::AllUppercase
                                                                    : QFont::SmallCaps);
    if (format.hidden) {
        text.setProperty(HiddenText, int(format.color));
        text.setForeground(QColor(Qt::transparent));
        text.setFontLetterSpacingType(QFont::PercentageSpacing);
        text.setFontLetterSpacing(NarrowestSpacing);
    }
    if (format.link != NoName) {
        text.setAnchor(true);
        text.setAnchorHref(names.linkAt(format.link));
    }
    return text;
}

CharFormat charFormat(const QTextCharFormat& format, Names& names, const QFont& defaultFont) {
    CharFormat result;
    result.family = names.family(familyOf(format, defaultFont));
    result.halfPoints =
        std::max(1, int(std::lround(pointsOf(format, defaultFont) * HalfPointsPerPoint)));
    result.bold = isBold(format, defaultFont);
    result.italic = isItalic(format, defaultFont);
    result.strike = format.fontStrikeOut();
    result.controlMarks = format.boolProperty(ControlMarks);
    result.underline = underlineOf(format);
    result.hidden = format.hasProperty(HiddenText);
    result.color = colorOf(format);
    if (format.background().style() != Qt::NoBrush)
        result.highlight = format.background().color().rgb();
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignSuperScript:
        result.script = Script::Super;
        break;
    case QTextCharFormat::AlignSubScript:
        result.script = Script::Sub;
        break;
    default:
        break;
    }
    result.raise = int(std::lround(format.baselineOffset() * result.halfPoints / 100));
    switch (format.fontCapitalization()) {
    case QFont::AllUppercase:
        result.capitals = Capitals::All;
        break;
    case QFont::SmallCaps:
        result.capitals = Capitals::Small;
        break;
    default:
        break;
    }
    if (!format.anchorHref().isEmpty())
        result.link = names.link(format.anchorHref());
    return result;
}

} // namespace orvalis::rtf
