// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/block_formats.h"

#include "rtf/formats/format_properties.h"
#include "rtf/formats/format_readers.h"
#include "rtf/formats/list_formats.h"
#include "rtf/formats/paragraph_place.h"
#include "rtf/kept/kept_row.h"
#include "rtf/kept/kept_text.h"

#include <QBrush>
#include <QTextList>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr Qt::Alignment VisuallyLeft = Qt::AlignLeft | Qt::AlignAbsolute;

constexpr double SingleLine = 240.0; // of \sl with \slmult1

double pixels(int twips) {
    return twips / TwipsPerPixel;
}
int twips(double pixels) {
    return int(std::lround(pixels * TwipsPerPixel));
}

void setLineSpacing(QTextBlockFormat& block, const ParagraphFormat& format) {
    if (format.lineSpacing == 0)
        return;
    if (format.lineMultiple)
        block.setLineHeight(std::abs(format.lineSpacing) * 100 / SingleLine,
                            QTextBlockFormat::ProportionalHeight);
    else if (format.lineSpacing > 0)
        block.setLineHeight(pixels(format.lineSpacing), QTextBlockFormat::MinimumHeight);
    else
        block.setLineHeight(pixels(-format.lineSpacing), QTextBlockFormat::FixedHeight);
}

void readLineSpacing(const QTextBlockFormat& block, ParagraphFormat& format) {
    switch (block.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        format.lineSpacing = int(std::lround(block.lineHeight() * SingleLine / 100));
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

void setKept(QTextBlockFormat& block, const ParagraphFormat& format, const Names& names) {
    if (format.mark != NothingKept)
        block.setProperty(ParagraphMark, names.keptAt(format.mark));
    if (format.stated != 0)
        block.setProperty(StatedOfParagraph, format.stated);
    if (format.row != NothingKept) {
        block.setProperty(TableRow, names.keptAt(format.row));
        if (format.rowBegins)
            block.setProperty(RowBegins, true);
        if (format.nesting != 0)
            block.setProperty(TableNesting, format.nesting);
        if (format.nestedRow != NothingKept)
            block.setProperty(NestedRow, names.keptAt(format.nestedRow));
    }
    if (format.afterAhead != NoLength)
        block.setProperty(SpaceAfterAhead, format.afterAhead);
    if (format.anchors != NothingKept)
        block.setProperty(KeptAtStart, names.keptAt(format.anchors));
    if (format.section != NothingKept)
        block.setProperty(KeptOfSection, names.keptAt(format.section));
    if (format.box != NothingKept) {
        block.setProperty(KeptBox, names.keptAt(format.box));
        if (format.boxPlace != 0)
            block.setProperty(BoxPlace, format.boxPlace);
        if (format.boxAhead)
            block.setProperty(BoxAhead, true);
    }
    if (format.goesOn)
        block.setProperty(GoesOnBehindBox, true);
    if (format.kept == NothingKept)
        return;
    const QString kept = names.keptAt(format.kept);
    block.setProperty(KeptOfParagraph, kept);
    if (const QRgb shade = shadeOf(kept); shade != AutomaticColor)
        block.setBackground(QColor::fromRgb(shade));
}

} // namespace

QTextBlockFormat blockFormat(const ParagraphFormat& format, const Names& names, int defaultTab) {
    QTextBlockFormat block;
    switch (format.alignment) {
    case Alignment::Left:
        block.setAlignment(format.rightToLeft && format.leftIsSaid ? VisuallyLeft : Qt::AlignLeft);
        break;
    case Alignment::Right:
        // What is set to the right stands there whichever way its text runs.
        block.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
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
    else if (format.leftToRight)
        block.setLayoutDirection(Qt::LeftToRight);
    if (format.pageBreakBefore) {
        block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        if (format.pageWord != PageWord::OfParagraph)
            block.setProperty(PageBreakWord, int(format.pageWord));
    }
    placeParagraph(block, format, defaultTab);
    if (format.before != 0)
        block.setTopMargin(pixels(format.before));
    if (format.after != 0)
        block.setBottomMargin(pixels(format.after));
    setLineSpacing(block, format);
    setKept(block, format, names);
    return block;
}

ParagraphFormat paragraphFormat(const QTextBlockFormat& format, const QTextList* list,
                                double indentWidth, Names& names) {
    ParagraphFormat result;
    result.alignment = alignmentOf(format);
    result.rightToLeft = format.layoutDirection() == Qt::RightToLeft;
    result.leftToRight = format.hasProperty(QTextFormat::LayoutDirection) &&
                         format.layoutDirection() == Qt::LeftToRight;
    result.leftIsSaid = result.rightToLeft && format.alignment() == VisuallyLeft;
    result.pageBreakBefore = format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
    if (result.pageBreakBefore)
        result.pageWord = static_cast<PageWord>(
            std::clamp(format.intProperty(PageBreakWord), 0, int(PageWord::Between)));
    const Indents indents = indentsOf(format, list, indentWidth);
    result.left = indents.left;
    result.first = indents.first;
    result.right = indents.right;
    result.before = twips(format.topMargin());
    result.after = twips(format.bottomMargin());
    if (format.hasProperty(SpaceAfterAhead))
        result.afterAhead = format.intProperty(SpaceAfterAhead);
    readLineSpacing(format, result);
    result.tabs = tabStopsOf(format, (result.rightToLeft ? result.right : result.left) +
                                         (list ? twips(format.textIndent()) : result.first));
    result.kept = names.kept(format.stringProperty(KeptOfParagraph));
    result.row = names.kept(format.stringProperty(TableRow));
    result.rowBegins = format.boolProperty(RowBegins);
    result.rowStaysOpen = format.boolProperty(RowStaysOpen);
    result.nesting = std::clamp(format.intProperty(TableNesting), 0, MostNesting);
    result.nestedRow = names.kept(format.stringProperty(NestedRow));
    if (const QString mark = format.stringProperty(ParagraphMark); list || isTracked(mark))
        result.mark = names.kept(mark);
    result.stated = format.intProperty(StatedOfParagraph);
    result.anchors = names.kept(format.stringProperty(KeptAtStart));
    result.section = names.kept(format.stringProperty(KeptOfSection));
    result.box = names.kept(format.stringProperty(KeptBox));
    result.boxPlace = format.intProperty(BoxPlace);
    result.boxAhead = format.boolProperty(BoxAhead);
    result.goesOn = format.boolProperty(GoesOnBehindBox);
    if (list)
        result.list = labelOf(*list);
    return result;
}

} // namespace orvalis::rtf
