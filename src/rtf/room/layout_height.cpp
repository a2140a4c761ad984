// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/layout_height.h"

#include "rtf/room/letter_widths.h"

#include <QFont>
#include <QTextCharFormat>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72;
constexpr double LineOfSize = 1.5;
// What reaches up and what reaches down are whole pixels each, which tells where letters are tiny.
constexpr double TinyLineOfSize = 1.2;
constexpr double TinyLine = 2;
constexpr double LinesOfFullOnes = 2; // where a word that does not fit leaves most of a line empty
constexpr double ListStep = 40;       // pixels by which a list may stand further in
/// What a guess may fall short by.
constexpr double Shortness = 1.75;

double pixelSize(const QTextCharFormat& format, const QFont& defaultFont) {
    if (format.fontPointSize() > 0)
        return format.fontPointSize() * PixelsPerPoint;
    if (format.hasProperty(QTextFormat::FontPixelSize))
        return format.intProperty(QTextFormat::FontPixelSize);
    return defaultFont.pointSizeF() > 0 ? defaultFont.pointSizeF() * PixelsPerPoint
                                        : defaultFont.pixelSize();
}

// Widths of characters in thirds of their size.
constexpr int OrdinaryThirds = 2;
constexpr int WideThirds = 6;
constexpr int ALine = -1;

constexpr int thirdsOf(char16_t c) {
    if (c == u'\t' || c == QChar::LineSeparator)
        return ALine;
    if (c < 0x0590 || (c >= 0x2010 && c <= 0x2027))
        return OrdinaryThirds;
    if (c >= 0x3000 && c <= 0xd7ff) // ideographs, as wide as high
        return OrdinaryThirds;
    if (c >= 0xf000 && c <= 0xf0ff) // symbol fonts
        return OrdinaryThirds;
    const bool ligature = c >= 0xfb50 && c <= 0xfdff;  // up to whole sentences
    const bool cuneiform = c >= 0xd808 && c <= 0xd809; // high surrogates
    const bool longDash = c == 0x2e3a || c == 0x2e3b;
    return ligature || cuneiform || longDash ? ALine : WideThirds;
}

/// How many lines a third of the letters' size is.
double linesOfThird(const LetterHeight& letters, const ParagraphShape& shape) {
    return shape.room > 0 ? LinesOfFullOnes * letters.size / 3 / shape.room : 1.0;
}

/// Whether letters are as wide as those of their font, and stand on their line.
bool standsAsItsFontHasIt(const QTextCharFormat& format) {
    for (const int property :
         {QTextFormat::FontLetterSpacing, QTextFormat::FontWordSpacing, QTextFormat::FontStretch,
          QTextFormat::FontCapitalization, QTextFormat::TextVerticalAlignment,
          QTextFormat::TextBaselineOffset, QTextFormat::TextSuperScriptBaseline,
          QTextFormat::TextSubScriptBaseline, QTextFormat::FontSizeAdjustment})
        if (format.hasProperty(property))
            return false;
    return !format.isImageFormat();
}

} // namespace

LetterHeight letterHeight(const QTextCharFormat& format, const QFont& defaultFont) {
    const double size = pixelSize(format, defaultFont);
    const double wider = std::max(1.0, format.fontStretch() / 100.0);
    const double line = std::max(size * LineOfSize, size * TinyLineOfSize + TinyLine);
    return {size * wider, line + size * std::abs(format.baselineOffset()) / 100};
}

LetterHeight measuredHeight(const QTextCharFormat& format, const QFont& defaultFont) {
    LetterHeight letters = letterHeight(format, defaultFont);
    if (!standsAsItsFontHasIt(format))
        return letters;
    letters.widths = LetterWidths::of(format.font().resolve(defaultFont));
    if (letters.widths->line() > letters.line)
        letters.widths.reset(); // the height that is guessed is the most that one letter may need
    return letters;
}

ParagraphShape paragraphShape(const QTextBlockFormat& format) {
    ParagraphShape shape;
    const double left = format.leftMargin() + ListStep * format.indent();
    const double step = format.textIndent();
    const double taken = std::max(left, left + step) + format.rightMargin();
    shape.room = std::max(0.0, NarrowestBox - std::max(0.0, taken));
    shape.margins = std::max(0.0, format.topMargin()) + std::max(0.0, format.bottomMargin());
    const double length = format.lineHeight();
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        shape.multiple = std::max(1.0, length / 100);
        break;
    case QTextBlockFormat::FixedHeight:
    case QTextBlockFormat::MinimumHeight:
        shape.least = length;
        break;
    case QTextBlockFormat::LineDistanceHeight:
        shape.margins += std::max(0.0, length);
        break;
    default:
        break;
    }
    return shape;
}

ParagraphShape higherShape(const ParagraphShape& one, const ParagraphShape& other) {
    return {std::min(one.room, other.room), std::max(one.multiple, other.multiple),
            std::max(one.least, other.least), std::max(one.margins, other.margins)};
}

double heightOfLine(const LetterHeight& letters, const ParagraphShape& shape) {
    return std::max(letters.line * shape.multiple, shape.least);
}

double linesOfRun(QStringView text, const LetterHeight& letters, const ParagraphShape& shape) {
    qsizetype lines = 1;
    qsizetype ordinary = 0;
    for (const QChar character : text) {
        const int thirds = thirdsOf(character.unicode());
        ordinary += thirds == OrdinaryThirds;
        lines += thirds == ALine;
    }
    const double third = linesOfThird(letters, shape);
    const auto wide = double(text.size() - ordinary - (lines - 1));
    const double others = double(ordinary) * std::min(1.0, OrdinaryThirds * third) +
                          wide * std::min(1.0, WideThirds * third);
    return double(lines) + others;
}

double heightOfRun(QStringView text, const LetterHeight& letters, const ParagraphShape& shape) {
    return Shortness * linesOfRun(text, letters, shape) * heightOfLine(letters, shape);
}

double heightOfParagraph(const LetterHeight& mark, const ParagraphShape& shape) {
    return shape.margins + Shortness * heightOfLine(mark, shape);
}

double heightOfPicture(double height, const LetterHeight& letters, const ParagraphShape& shape) {
    // A word that goes on behind it takes its height into another line.
    return Shortness * (heightOfLine(letters, shape) + height * shape.multiple);
}

qsizetype wholeCharacters(QStringView text, qsizetype length) {
    length = std::clamp<qsizetype>(length, 0, text.size());
    const bool parted = length > 0 && length < text.size() && text[length - 1].isHighSurrogate() &&
                        text[length].isLowSurrogate();
    return parted ? length - 1 : length;
}

} // namespace orvalis::rtf
