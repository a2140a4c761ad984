// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/block_formats.h"

#include "rtf/format_properties.h"
#include "rtf/list_number.h"

#include <QTextBlock>
#include <QTextList>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double singleLine = 240.0; // of \sl with \slmult1
// What a label and the gap behind it take; Qt draws them left of the text.
constexpr int labelRoom = 240; // twips
// The hanging indent of a list item that was made on the screen.
constexpr int labelIndent = 360; // twips

// A level of the list tables counts the characters of its label in one byte.
constexpr qsizetype longestLabelText = 60;

double pixels(int twips) {
    return twips / twipsPerPixel;
}
int twips(double pixels) {
    return int(std::lround(pixels * twipsPerPixel));
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

/// The text before or behind the number, without what the list tables have no room for: codes below
/// a blank stand for numbers there.
QString labelText(QString text) {
    text.removeIf([](QChar c) {
        return c < u' ' || c == QChar::LineSeparator || c == QChar::ObjectReplacementCharacter;
    });
    text.truncate(longestLabelText);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text;
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

ListLabel labelOf(const QTextList& list) {
    const QTextListFormat format = list.format();
    ListLabel label;
    label.kind = listKind(format.style());
    // Bullets look alike whichever list they are of, numbers do not.
    if (label.kind == ListKind::Bullet)
        return label;
    label.identity = list.objectIndex() + 1;
    label.prefix = labelText(format.numberPrefix());
    // A list that says nothing of it shows a dot behind its numbers.
    label.suffix = format.hasProperty(QTextFormat::ListNumberSuffix)
                       ? labelText(format.numberSuffix())
                       : QStringLiteral(".");
    if (format.hasProperty(ListStart))
        label.start = format.intProperty(ListStart);
    return label;
}

} // namespace

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
    list.setNumberPrefix(labelText(label.prefix));
    list.setNumberSuffix(labelText(label.suffix));
    if (label.start != 1)
        list.setProperty(ListStart, label.start);
    return list;
}

QTextBlockFormat itemFormat(const QTextList& list) {
    QTextBlockFormat item;
    item.setObjectIndex(list.objectIndex());
    if (list.format().hasProperty(ListStart))
        item.setProperty(QTextFormat::ListStyle, int(QTextListFormat::ListStyleUndefined));
    return item;
}

bool hidesLabel(const QTextBlockFormat& item) {
    return item.hasProperty(QTextFormat::ListStyle) &&
           item.intProperty(QTextFormat::ListStyle) == QTextListFormat::ListStyleUndefined;
}

void showLabel(QTextBlockFormat& item) {
    item.clearProperty(QTextFormat::ListStyle);
}

QString listLabel(const QTextBlock& item) {
    const QTextList* list = item.textList();
    if (!list)
        return {};
    const ListLabel label = labelOf(*list);
    if (label.kind == ListKind::Bullet)
        return {};
    const int number = label.start + list->itemNumber(item);
    return label.prefix + listNumber(label.kind, number) + label.suffix;
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

    result.list = labelOf(*list);
    const QTextListFormat listFormat = list->format();
    if (!listFormat.boolProperty(ListIndentIsRoom))
        result.left += twips(listFormat.indent() * indentWidth);
    if (format.hasProperty(ParagraphFirstIndent))
        result.first += format.intProperty(ParagraphFirstIndent);
    else if (result.first == 0)
        result.first = -std::min(labelIndent, result.left);
    return result;
}

} // namespace orvalis::rtf
