// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/list_formats.h"

#include "rtf/format_properties.h"
#include "rtf/list_number.h"

#include <QTextBlock>
#include <QTextList>

namespace orvalis::rtf {

namespace {

// What a label and the gap behind it take; Qt draws them left of the text.
constexpr int LabelRoom = 240; // twips

// A level of the list tables counts the characters of its label in one byte.
constexpr qsizetype LongestLabelText = 60;

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
    text.truncate(LongestLabelText);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text;
}

} // namespace

QTextListFormat listFormat(const ListLabel& label, int left) {
    QTextListFormat list;
    list.setStyle(listStyle(label.kind));
    const bool needsRoom = left < LabelRoom;
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

} // namespace orvalis::rtf
