// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/text_formats.h"

#include "rtf/control_marks.h"
#include "rtf/format_properties.h"

#include <QBrush>
#include <QFont>
#include <QTextList>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double halfPointsPerPoint = 2.0;
constexpr double pointsPerPixel = 0.75;
constexpr double singleLine = 240.0; // of \sl with \slmult1
// What a label and the gap behind it take; Qt draws them left of the text.
constexpr int labelRoom = 240; // twips
// The hanging indent of a list item that was made on the screen.
constexpr int labelIndent = 360; // twips
// Per cent of the usual distance; 0 would mean the usual one.
constexpr double narrowestSpacing = 1;

double pixels(int twips) {
    return twips / twipsPerPixel;
}
int twips(double pixels) {
    return int(std::lround(pixels * twipsPerPixel));
}

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

QRgb colorOf(const QBrush& brush) {
    return brush.style() == Qt::NoBrush ? automaticColor : brush.color().rgb();
}

QString familyOf(const QTextCharFormat& format, const QFont& defaultFont) {
    const QStringList families = format.fontFamilies().toStringList();
    if (!families.isEmpty() && !families.first().isEmpty())
        return families.first();
    const QString family = format.stringProperty(QTextFormat::OldFontFamily);
    return family.isEmpty() ? defaultFont.family() : family;
}

double pointSizeOf(const QTextCharFormat& format, const QFont& defaultFont) {
    double size = defaultFont.pointSizeF() > 0 ? defaultFont.pointSizeF()
                                               : defaultFont.pixelSize() * pointsPerPixel;
    if (format.fontPointSize() > 0)
        size = format.fontPointSize();
    else if (format.hasProperty(QTextFormat::FontPixelSize))
        size = format.intProperty(QTextFormat::FontPixelSize) * pointsPerPixel;
    if (format.hasProperty(QTextFormat::FontSizeAdjustment)) {
        // The steps in which documents that came from HTML grow and shrink their text.
        static constexpr double steps[] = {0.7, 0.8, 1.0, 1.2, 1.5, 2.0, 2.4};
        const int step = format.intProperty(QTextFormat::FontSizeAdjustment) + 2;
        size *= steps[std::clamp(step, 0, int(std::size(steps)) - 1)];
    }
    return size;
}

QTextListFormat::Style listStyle(ListKind kind) {
    switch (kind) {
    case ListKind::Decimal:
        return QTextListFormat::ListDecimal;
    case ListKind::LowerLetter:
        return QTextListFormat::ListLowerAlpha;
    case ListKind::UpperLetter:
        return QTextListFormat::ListUpperAlpha;
    case ListKind::LowerRoman:
        return QTextListFormat::ListLowerRoman;
    case ListKind::UpperRoman:
        return QTextListFormat::ListUpperRoman;
    default:
        return QTextListFormat::ListDisc;
    }
}

ListKind listKind(QTextListFormat::Style style) {
    switch (style) {
    case QTextListFormat::ListDecimal:
        return ListKind::Decimal;
    case QTextListFormat::ListLowerAlpha:
        return ListKind::LowerLetter;
    case QTextListFormat::ListUpperAlpha:
        return ListKind::UpperLetter;
    case QTextListFormat::ListLowerRoman:
        return ListKind::LowerRoman;
    case QTextListFormat::ListUpperRoman:
        return ListKind::UpperRoman;
    default:
        return ListKind::Bullet;
    }
}

void setLineSpacing(QTextBlockFormat& block, const ParagraphFormat& format) {
    if (format.lineSpacing == 0)
        return;
    if (format.lineMultiple)
        block.setLineHeight(std::abs(format.lineSpacing) * 100 / singleLine,
                            QTextBlockFormat::ProportionalHeight);
    else if (format.lineSpacing > 0)
        block.setLineHeight(pixels(format.lineSpacing), QTextBlockFormat::MinimumHeight);
    else
        block.setLineHeight(pixels(-format.lineSpacing), QTextBlockFormat::FixedHeight);
}

void readLineSpacing(const QTextBlockFormat& block, ParagraphFormat& format) {
    switch (block.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        format.lineSpacing = int(std::lround(block.lineHeight() * singleLine / 100));
        format.lineMultiple = true;
        break;
    case QTextBlockFormat::MinimumHeight:
        format.lineSpacing = twips(block.lineHeight());
        break;
    case QTextBlockFormat::FixedHeight:
        format.lineSpacing = -twips(block.lineHeight());
        break;
    default:
        break;
    }
}

} // namespace

QTextCharFormat textFormat(const CharFormat& format, const Names& names) {
    QTextCharFormat text;
    if (format.family != noName)
        text.setFontFamilies({names.familyAt(format.family)});
    text.setFontPointSize(format.halfPoints / halfPointsPerPoint);
    text.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    text.setFontItalic(format.italic);
    text.setFontStrikeOut(format.strike);
    if (format.controlMarks)
        text.setProperty(ControlMarks, true);
    text.setUnderlineStyle(shownUnderline(format.underline));
    if (format.underline == Underline::Words || format.underline == Underline::Double ||
        format.underline == Underline::Thick)
        text.setProperty(UnderlineKind, int(format.underline));
    if (format.color != automaticColor)
        text.setForeground(QColor::fromRgb(format.color));
    if (format.highlight != automaticColor)
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
        text.setFontLetterSpacing(narrowestSpacing);
    }
    if (format.link != noName) {
        text.setAnchor(true);
        text.setAnchorHref(names.linkAt(format.link));
    }
    return text;
}

QTextBlockFormat blockFormat(const ParagraphFormat& format) {
    QTextBlockFormat block;
    switch (format.alignment) {
    case Alignment::Left:
        block.setAlignment(Qt::AlignLeft);
        break;
    case Alignment::Right:
        block.setAlignment(Qt::AlignRight);
        break;
    case Alignment::Center:
        block.setAlignment(Qt::AlignHCenter);
        break;
    case Alignment::Justify:
        block.setAlignment(Qt::AlignJustify);
        break;
    }
    if (format.rightToLeft)
        block.setLayoutDirection(Qt::RightToLeft);
    if (format.pageBreakBefore)
        block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    if (format.left != 0)
        block.setLeftMargin(pixels(format.left));
    if (format.list.kind != ListKind::None)
        block.setProperty(ParagraphFirstIndent, format.first);
    else if (format.first != 0)
        block.setTextIndent(pixels(format.first));
    if (format.right != 0)
        block.setRightMargin(pixels(format.right));
    if (format.before != 0)
        block.setTopMargin(pixels(format.before));
    if (format.after != 0)
        block.setBottomMargin(pixels(format.after));
    setLineSpacing(block, format);
    if (!format.tabs.isEmpty()) {
        QList<QTextOption::Tab> tabs;
        for (const TabStop& tab : format.tabs)
            tabs.append(
                QTextOption::Tab(pixels(tab.position), tab.type,
                                 tab.type == QTextOption::DelimiterTab ? QChar(u'.') : QChar()));
        block.setTabPositions(tabs);
    }
    return block;
}

QTextListFormat listFormat(const ListLabel& label, int left) {
    QTextListFormat list;
    list.setStyle(listStyle(label.kind));
    const bool needsRoom = left < labelRoom;
    list.setIndent(needsRoom ? 1 : 0);
    if (needsRoom)
        list.setProperty(ListIndentIsRoom, true);
    if (label.kind == ListKind::Bullet)
        return list;
    list.setNumberPrefix(label.prefix);
    list.setNumberSuffix(label.suffix);
    if (label.start != 1)
        list.setProperty(ListStart, label.start);
    return list;
}

CharFormat charFormat(const QTextCharFormat& format, Names& names, const QFont& defaultFont) {
    CharFormat result;
    result.family = names.family(familyOf(format, defaultFont));
    result.halfPoints =
        std::max(1, int(std::lround(pointSizeOf(format, defaultFont) * halfPointsPerPoint)));
    const bool saysWeight = format.hasProperty(QTextFormat::FontWeight);
    result.bold = (saysWeight ? format.fontWeight() : int(defaultFont.weight())) > QFont::Medium;
    result.italic =
        format.hasProperty(QTextFormat::FontItalic) ? format.fontItalic() : defaultFont.italic();
    result.strike = format.fontStrikeOut();
    result.controlMarks = format.boolProperty(ControlMarks);
    result.underline = underlineOf(format);
    result.hidden = format.hasProperty(HiddenText);
    result.color =
        result.hidden ? QRgb(format.intProperty(HiddenText)) : colorOf(format.foreground());
    result.highlight = colorOf(format.background());
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

ParagraphFormat paragraphFormat(const QTextBlockFormat& format, const QTextList* list,
                                double indentWidth) {
    ParagraphFormat result;
    const Qt::Alignment alignment = format.alignment();
    if (alignment & Qt::AlignHCenter)
        result.alignment = Alignment::Center;
    else if (alignment & Qt::AlignRight)
        result.alignment = Alignment::Right;
    else if (alignment & Qt::AlignJustify)
        result.alignment = Alignment::Justify;
    result.rightToLeft = format.layoutDirection() == Qt::RightToLeft;
    result.pageBreakBefore = format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
    result.left = twips(format.leftMargin() + format.indent() * indentWidth);
    result.first = twips(format.textIndent());
    result.right = twips(format.rightMargin());
    result.before = twips(format.topMargin());
    result.after = twips(format.bottomMargin());
    readLineSpacing(format, result);
    const auto tabs = format.tabPositions();
    for (const QTextOption::Tab& tab : tabs)
        result.tabs.append(TabStop{twips(tab.position), tab.type});
    if (!list)
        return result;

    const QTextListFormat listFormat = list->format();
    result.list.kind = listKind(listFormat.style());
    // Bullets look alike whichever list they are of, numbers do not.
    if (result.list.kind != ListKind::Bullet) {
        result.list.identity = list->objectIndex();
        result.list.prefix = listFormat.numberPrefix();
        // A list that says nothing of it shows a dot behind its numbers.
        result.list.suffix = listFormat.hasProperty(QTextFormat::ListNumberSuffix)
                                 ? listFormat.numberSuffix()
                                 : QStringLiteral(".");
        if (listFormat.hasProperty(ListStart))
            result.list.start = listFormat.intProperty(ListStart);
    }
    if (!listFormat.boolProperty(ListIndentIsRoom))
        result.left += twips(listFormat.indent() * indentWidth);
    if (format.hasProperty(ParagraphFirstIndent))
        result.first += format.intProperty(ParagraphFirstIndent);
    else if (result.first == 0)
        result.first = -std::min(labelIndent, result.left);
    return result;
}

} // namespace orvalis::rtf
