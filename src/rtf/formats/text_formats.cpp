// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/text_formats.h"

#include "rtf/characters/control_marks.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/format_readers.h"
#include "rtf/kept/kept_text.h"

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
    case Underline::ThickDotted:
        return QTextCharFormat::DotLine;
    case Underline::Dash:
    case Underline::LongDash:
    case Underline::ThickDash:
    case Underline::ThickLongDash:
        return QTextCharFormat::DashUnderline;
    case Underline::DashDot:
    case Underline::ThickDashDot:
        return QTextCharFormat::DashDotLine;
    case Underline::DashDotDot:
    case Underline::ThickDashDotDot:
        return QTextCharFormat::DashDotDotLine;
    case Underline::Wave:
    case Underline::HeavyWave:
    case Underline::DoubleWave:
        return QTextCharFormat::WaveUnderline;
    default:
        return QTextCharFormat::SingleUnderline;
    }
}

/// The underline that a document means where it shows a style.
Underline plainUnderline(QTextCharFormat::UnderlineStyle style) {
    switch (style) {
    case QTextCharFormat::NoUnderline:
        return Underline::None;
    case QTextCharFormat::DotLine:
        return Underline::Dotted;
    case QTextCharFormat::DashUnderline:
        return Underline::Dash;
    case QTextCharFormat::DashDotLine:
        return Underline::DashDot;
    case QTextCharFormat::DashDotDotLine:
        return Underline::DashDotDot;
    case QTextCharFormat::WaveUnderline:
    case QTextCharFormat::SpellCheckUnderline:
        return Underline::Wave;
    case QTextCharFormat::SingleUnderline:
        break;
    }
    return Underline::Single;
}

/// The underline that came from a file holds as long as the style that it shows as.
Underline underlineOf(const QTextCharFormat& format) {
    const QTextCharFormat::UnderlineStyle style = format.underlineStyle();
    const int kept = format.intProperty(UnderlineKind);
    const bool known = kept > int(Underline::None) && kept <= int(Underline::Hairline);
    if (known && shownUnderline(static_cast<Underline>(kept)) == style)
        return static_cast<Underline>(kept);
    return plainUnderline(style);
}

/// Pixels between the characters, held to what no line can be upset by.
double shownSpacing(const CharFormat& format) {
    constexpr int Widest = 200; // twips
    constexpr int TwipsPerHalfPoint = 10;
    constexpr int NarrowestShare = 5; // of the size
    const int narrowest = format.halfPoints * TwipsPerHalfPoint / NarrowestShare;
    return std::clamp(format.spacing, -narrowest, Widest) / TwipsPerPixel;
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
    if (format.doubleStrike)
        text.setProperty(DoubleStrike, true);
    if (format.controlMarks)
        text.setProperty(ControlMarks, true);
    text.setUnderlineStyle(shownUnderline(format.underline));
    if (format.underline != plainUnderline(text.underlineStyle()))
        text.setProperty(UnderlineKind, int(format.underline));
    if (format.color != AutomaticColor)
        text.setForeground(QColor::fromRgb(format.color));
    if (format.highlight != AutomaticColor)
        text.setBackground(QColor::fromRgb(format.highlight));
    if (format.shading)
        text.setProperty(CharacterShading, true);
    if (format.script != Script::Normal)
        text.setVerticalAlignment(format.script == Script::Super ? QTextCharFormat::AlignSuperScript
                                                                 : QTextCharFormat::AlignSubScript);
    if (format.raise != 0)
        text.setBaselineOffset(100.0 * format.raise / format.halfPoints);
    if (format.capitals != Capitals::AsTyped)
        text.setFontCapitalization(format.capitals == Capitals::All ? QFont::AllUppercase
                                                                    : QFont::SmallCaps);
    if (format.spacing != 0) {
        text.setProperty(CharacterSpacing, format.spacing);
        text.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        text.setFontLetterSpacing(shownSpacing(format));
    }
    if (format.kept != NothingKept) {
        const QString kept = names.keptAt(format.kept);
        text.setProperty(KeptOfCharacters, kept);
        if (const int stretch = stretchOf(kept); stretch != QFont::Unstretched)
            text.setFontStretch(stretch);
    }
    if (format.field != NothingKept)
        text.setProperty(KeptField, names.keptAt(format.field));
    if (format.byNumber)
        text.setProperty(SignsByNumber, true);
    if (format.stated != 0)
        text.setProperty(StatedOfCharacters, format.stated);
    if (format.cell != NothingKept)
        text.setProperty(CellShape, names.keptAt(format.cell));
    if (format.hidden) {
        text.setProperty(HiddenText, int(format.color));
        text.setForeground(QColor(Qt::transparent));
        text.setFontLetterSpacingType(QFont::PercentageSpacing);
        text.setFontLetterSpacing(NarrowestSpacing);
    }
    if (format.link != NoName) {
        text.setAnchor(true);
        const Hyperlink link = names.linkAt(format.link);
        text.setAnchorHref(link.target);
        if (!link.switches.isEmpty())
            text.setProperty(LinkSwitches, link.switches);
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
    result.doubleStrike = result.strike && format.boolProperty(DoubleStrike);
    result.spacing = format.intProperty(CharacterSpacing);
    result.kept = names.kept(format.stringProperty(KeptOfCharacters));
    result.cell = names.kept(format.stringProperty(CellShape));
    result.field = names.kept(format.stringProperty(KeptField));
    result.stated = format.intProperty(StatedOfCharacters);
    result.anchors = names.kept(format.stringProperty(KeptAnchors));
    result.controlMarks = format.boolProperty(ControlMarks);
    result.byNumber = format.boolProperty(SignsByNumber);
    result.underline = underlineOf(format);
    result.hidden = format.hasProperty(HiddenText);
    result.color = colorOf(format);
    if (const QBrush ground = format.background(); ground.style() != Qt::NoBrush)
        result.highlight = ground.color().rgb();
    result.shading = result.highlight != AutomaticColor && format.boolProperty(CharacterShading);
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
    if (const QString target = format.anchorHref(); !target.isEmpty())
        result.link = names.link({target, format.stringProperty(LinkSwitches)});
    return result;
}

} // namespace orvalis::rtf
