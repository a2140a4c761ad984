// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_readers.h"

#include "rtf/formats/format_properties.h"
#include "rtf/formats/paragraph_place.h"

#include <QBrush>
#include <QFont>
#include <QTextList>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double PointsPerPixel = 0.75;
// The hanging indent of a list item that was made on the screen.
constexpr int LabelIndent = 360; // twips

int twipsOf(double pixels) {
    return int(std::lround(pixels * TwipsPerPixel));
}

} // namespace

QString familyOf(const QTextCharFormat& format, const QFont& defaultFont) {
    const QStringList families = format.fontFamilies().toStringList();
    if (!families.isEmpty() && !families.first().isEmpty())
        return families.first();
    const QString family = format.stringProperty(QTextFormat::OldFontFamily);
    return family.isEmpty() ? defaultFont.family() : family;
}

double pointsOf(const QTextCharFormat& format, const QFont& defaultFont) {
    double size = defaultFont.pointSizeF() > 0 ? defaultFont.pointSizeF()
                                               : defaultFont.pixelSize() * PointsPerPixel;
    if (format.fontPointSize() > 0)
        size = format.fontPointSize();
    else if (format.hasProperty(QTextFormat::FontPixelSize))
        size = format.intProperty(QTextFormat::FontPixelSize) * PointsPerPixel;
    if (format.hasProperty(QTextFormat::FontSizeAdjustment)) {
        // The steps in which documents that came from HTML grow and shrink their text.
        static constexpr double Steps[] = {0.7, 0.8, 1.0, 1.2, 1.5, 2.0, 2.4};
        const int step = format.intProperty(QTextFormat::FontSizeAdjustment) + 2;
        size *= Steps[std::clamp(step, 0, int(std::size(Steps)) - 1)];
    }
    return size;
}

bool isBold(const QTextCharFormat& format, const QFont& defaultFont) {
    const bool says = format.hasProperty(QTextFormat::FontWeight);
    return (says ? format.fontWeight() : int(defaultFont.weight())) > QFont::Medium;
}

bool isItalic(const QTextCharFormat& format, const QFont& defaultFont) {
    return format.hasProperty(QTextFormat::FontItalic) ? format.fontItalic() : defaultFont.italic();
}

QRgb colorOf(const QTextCharFormat& format) {
    if (format.hasProperty(HiddenText))
        return QRgb(format.intProperty(HiddenText));
    const QBrush ink = format.foreground();
    return ink.style() == Qt::NoBrush ? AutomaticColor : ink.color().rgb();
}

Alignment alignmentOf(const QTextBlockFormat& format) {
    const Qt::Alignment alignment = format.alignment();
    if (alignment & Qt::AlignHCenter)
        return Alignment::Center;
    if (alignment & Qt::AlignRight)
        return Alignment::Right;
    return alignment & Qt::AlignJustify ? Alignment::Justify : Alignment::Left;
}

Indents indentsOf(const QTextBlockFormat& format, const QTextList* list, double indentWidth) {
    Indents result;
    const bool rightToLeft = format.layoutDirection() == Qt::RightToLeft;
    result.left = twipsOf(format.leftMargin() + steppedMargin(format, list, indentWidth));
    result.right = twipsOf(format.rightMargin());
    (rightToLeft ? result.right : result.left) -= overhangOf(format);
    result.first = twipsOf(format.textIndent());
    if (!list)
        return result;
    if (format.hasProperty(ParagraphFirstIndent))
        result.first = format.intProperty(ParagraphFirstIndent);
    else if (result.first == 0)
        result.first = -std::min(LabelIndent, result.left);
    return result;
}

double steppedMargin(const QTextBlockFormat& format, const QTextList* list, double indentWidth) {
    int steps = format.indent();
    if (list)
        steps += list->format().indent();
    return steps * indentWidth;
}

} // namespace orvalis::rtf
