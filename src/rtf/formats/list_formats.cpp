// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/list_formats.h"

#include "rtf/characters/bullet_sign.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/list_number.h"

#include <QTextBlock>
#include <QTextList>

namespace orvalis::rtf {

namespace {

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

} // namespace

// Codes below a blank stand for numbers in the list tables.
QString cleanLabel(QString text) {
    text.removeIf([](QChar c) {
        return c < u' ' || c == QChar::LineSeparator || c == QChar::ObjectReplacementCharacter;
    });
    text.truncate(LongestLabelText);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text;
}

QTextListFormat listFormat(const ListLabel& label) {
    QTextListFormat list;
    list.setStyle(listStyle(label.kind));
    list.setIndent(0);
    if (label.follow != LabelFollow::Tab)
        list.setProperty(ListLabelFollow, int(label.follow));
    if (label.side != LabelSide::Left)
        list.setProperty(ListLabelSide, int(label.side));
    if (label.tab != 0)
        list.setProperty(ListLabelTab, label.tab);
    if (label.source != ListSource::Made)
        list.setProperty(ListToldBy, int(label.source));
    if (label.hasTables()) {
        list.setProperty(KeptList, label.keptList);
        list.setProperty(KeptListOverride, label.keptOverride);
        list.setProperty(KeptListLevel, label.level);
    }
    if (label.kind == ListKind::Bullet) {
        if (!label.prefix.isEmpty())
            list.setNumberPrefix(label.prefix);
        return list;
    }
    list.setNumberPrefix(cleanLabel(label.prefix));
    list.setNumberSuffix(cleanLabel(label.suffix));
    if (label.start != 1)
        list.setProperty(ListStart, label.start);
    return list;
}

ListLabel labelOf(const QTextList& list) {
    const QTextListFormat format = list.format();
    ListLabel label;
    label.kind = listKind(format.style());
    label.follow = static_cast<LabelFollow>(format.intProperty(ListLabelFollow));
    label.side = static_cast<LabelSide>(format.intProperty(ListLabelSide));
    label.tab = format.intProperty(ListLabelTab);
    label.source = static_cast<ListSource>(format.intProperty(ListToldBy));
    if (label.hasTables()) {
        label.keptList = format.stringProperty(KeptList);
        label.keptOverride = format.stringProperty(KeptListOverride);
        label.level = format.intProperty(KeptListLevel);
    }
    // Bullets look alike whichever list they are of, numbers do not.
    if (label.kind == ListKind::Bullet) {
        label.prefix = bulletSign(format.numberPrefix(), SymbolFont::None);
        return label;
    }
    label.identity = list.objectIndex() + 1;
    label.prefix = cleanLabel(format.numberPrefix());
    // A list that says nothing of it shows a dot behind its numbers.
    label.suffix = format.hasProperty(QTextFormat::ListNumberSuffix)
                       ? cleanLabel(format.numberSuffix())
                       : QStringLiteral(".");
    if (format.hasProperty(ListStart))
        label.start = format.intProperty(ListStart);
    return label;
}

QTextBlockFormat itemFormat(const QTextList& list) {
    QTextBlockFormat item;
    item.setObjectIndex(list.objectIndex());
    hideLabel(item);
    return item;
}

void hideLabel(QTextBlockFormat& item) {
    item.setProperty(QTextFormat::ListStyle, int(QTextListFormat::ListStyleUndefined));
}

bool hidesLabel(const QTextBlockFormat& item) {
    return item.hasProperty(QTextFormat::ListStyle) &&
           item.intProperty(QTextFormat::ListStyle) == QTextListFormat::ListStyleUndefined;
}

void showLabel(QTextBlockFormat& item) {
    item.clearProperty(QTextFormat::ListStyle);
}

QString labelText(const ListLabel& label, int number) {
    if (label.kind == ListKind::Bullet)
        return label.prefix.isEmpty() ? QString(QChar(0x2022)) : label.prefix;
    return label.prefix + listNumber(label.kind, number) + label.suffix;
}

QString shownLabel(const QTextBlock& item) {
    const QTextList* list = item.textList();
    if (!list)
        return {};
    const ListLabel label = labelOf(*list);
    const bool isNumber = label.kind != ListKind::Bullet;
    return labelText(label, isNumber ? label.start + list->itemNumber(item) : 0);
}

QString listLabel(const QTextBlock& item) {
    const QTextList* list = item.textList();
    if (!list)
        return {};
    const ListLabel label = labelOf(*list);
    if (label.kind == ListKind::Bullet)
        return {};
    return labelText(label, label.start + list->itemNumber(item));
}

} // namespace orvalis::rtf
