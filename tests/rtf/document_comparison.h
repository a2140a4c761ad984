// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/format_properties.h"
#include "rtf/pictures/picture.h"

#include <QFont>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <cmath>

namespace orvalis::test {

namespace detail {

inline bool near(double a, double b) {
    return std::abs(a - b) < 0.05;
}

inline QString differenceOfCharacters(const QTextCharFormat& a, const QTextCharFormat& b) {
    using namespace Qt::StringLiterals;
    if (a.isImageFormat() != b.isImageFormat())
        return u"picture"_s;
    if (a.isImageFormat()) {
        const QTextImageFormat one = a.toImageFormat();
        const QTextImageFormat other = b.toImageFormat();
        if (!near(one.width(), other.width()) || !near(one.height(), other.height()))
            return u"picture size %1 x %2, then %3 x %4"_s.arg(one.width())
                .arg(one.height())
                .arg(other.width())
                .arg(other.height());
        // Rows of pixels are written as an image file, everything else as it is.
        const auto kind = static_cast<rtf::PictureKind>(a.intProperty(rtf::PictureSourceKind));
        const bool kept = kind == rtf::PictureKind::Png || kind == rtf::PictureKind::Jpeg ||
                          kind == rtf::PictureKind::Wmf || kind == rtf::PictureKind::Emf;
        if (kept && a.property(rtf::PictureSource) != b.property(rtf::PictureSource))
            return u"bytes of the picture"_s;
    }
    if (a.fontFamilies().toStringList().value(0) != b.fontFamilies().toStringList().value(0))
        return u"font %1, then %2"_s.arg(a.fontFamilies().toStringList().value(0),
                                         b.fontFamilies().toStringList().value(0));
    if (!near(a.fontPointSize(), b.fontPointSize()))
        return u"size %1, then %2"_s.arg(a.fontPointSize()).arg(b.fontPointSize());
    if (a.foreground() != b.foreground())
        return u"colour"_s;
    if (a.background() != b.background())
        return u"highlight"_s;
    if (a.fontWeight() != b.fontWeight())
        return u"bold"_s;
    if (a.fontItalic() != b.fontItalic())
        return u"italic"_s;
    if (a.underlineStyle() != b.underlineStyle() ||
        a.intProperty(rtf::UnderlineKind) != b.intProperty(rtf::UnderlineKind))
        return u"underline"_s;
    if (a.fontStrikeOut() != b.fontStrikeOut())
        return u"strike"_s;
    if (a.verticalAlignment() != b.verticalAlignment())
        return u"script"_s;
    if (!near(a.baselineOffset(), b.baselineOffset()))
        return u"raise %1, then %2"_s.arg(a.baselineOffset()).arg(b.baselineOffset());
    if (a.property(rtf::HiddenText) != b.property(rtf::HiddenText))
        return u"hiding"_s;
    if (a.fontCapitalization() != b.fontCapitalization())
        return u"capitals"_s;
    if (a.anchorHref() != b.anchorHref())
        return u"link %1, then %2"_s.arg(a.anchorHref(), b.anchorHref());
    return {};
}

inline QString differenceOfParagraphs(const QTextBlock& one, const QTextBlock& other) {
    using namespace Qt::StringLiterals;
    const QTextBlockFormat a = one.blockFormat();
    const QTextBlockFormat b = other.blockFormat();
    if ((a.alignment() ^ b.alignment()) & ~Qt::AlignAbsolute)
        return u"alignment"_s;
    if (!near(a.leftMargin(), b.leftMargin()) || !near(a.rightMargin(), b.rightMargin()) ||
        !near(a.textIndent(), b.textIndent()))
        return u"indent"_s;
    if (!near(a.topMargin(), b.topMargin()) || !near(a.bottomMargin(), b.bottomMargin()))
        return u"spacing"_s;
    if (a.lineHeightType() != b.lineHeightType() || !near(a.lineHeight(), b.lineHeight()))
        return u"line spacing"_s;
    if (a.tabPositions() != b.tabPositions())
        return u"tabs"_s;
    if (a.pageBreakPolicy() != b.pageBreakPolicy())
        return u"page break"_s;
    if (a.layoutDirection() != b.layoutDirection())
        return u"direction"_s;
    const QTextList* list = one.textList();
    const QTextList* otherList = other.textList();
    if (bool(list) != bool(otherList))
        return u"list"_s;
    if (list && list->format().style() != otherList->format().style())
        return u"list style"_s;
    if (list && list->itemText(one) != otherList->itemText(other))
        return u"label %1, then %2"_s.arg(list->itemText(one), otherList->itemText(other));
    return {};
}

} // namespace detail

/// What two documents differ in first: text, pictures, fonts, sizes, colours, styles, paragraphs or
/// lists. Empty when they look the same.
inline QString firstDifference(const QTextDocument& a, const QTextDocument& b) {
    using namespace Qt::StringLiterals;
    const QString text = a.toRawText();
    const QString otherText = b.toRawText();
    if (text != otherText) {
        qsizetype at = 0;
        while (at < text.size() && at < otherText.size() && text[at] == otherText[at])
            ++at;
        return u"text at %1: \"%2\", then \"%3\""_s.arg(at).arg(text.mid(at, 20),
                                                                otherText.mid(at, 20));
    }
    QTextBlock other = b.begin();
    for (QTextBlock block = a.begin(); block.isValid();
         block = block.next(), other = other.next()) {
        const auto found = [&](const QString& what) {
            return u"%1 in \"%2\""_s.arg(what, block.text().left(40));
        };
        if (const QString what = detail::differenceOfParagraphs(block, other); !what.isEmpty())
            return found(what);
        auto it = block.begin();
        auto otherIt = other.begin();
        while (!it.atEnd() && !otherIt.atEnd()) {
            const QTextFragment one = it.fragment();
            const QTextFragment two = otherIt.fragment();
            const QString what = detail::differenceOfCharacters(one.charFormat(), two.charFormat());
            if (!what.isEmpty())
                return found(what);
            // Runs of one format may be cut differently.
            const int end = one.position() + one.length();
            const int otherEnd = two.position() + two.length();
            if (end <= otherEnd)
                ++it;
            if (otherEnd <= end)
                ++otherIt;
        }
    }
    return {};
}

} // namespace orvalis::test
