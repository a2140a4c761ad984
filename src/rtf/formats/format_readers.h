// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

class QFont;
class QTextList;

namespace orvalis::rtf {

/// What single properties of a document's formats mean.

/// Of characters; the document's default font shows where the format says nothing.
QString familyOf(const QTextCharFormat& format, const QFont& defaultFont);
double pointsOf(const QTextCharFormat& format, const QFont& defaultFont);
bool isBold(const QTextCharFormat& format, const QFont& defaultFont);
bool isItalic(const QTextCharFormat& format, const QFont& defaultFont);
/// AutomaticColor where the format has no colour of its own; of hidden text the colour that it
/// would show in.
QRgb colorOf(const QTextCharFormat& format);

Alignment alignmentOf(const QTextBlockFormat& format);

/// Where the lines of a paragraph begin and end, in twips from the margins.
struct Indents {
    int left = 0;
    int right = 0;
    int first = 0; ///< of the first line, relative to where the others begin
};

/// \param list of the paragraph, null for none.
/// \param indentWidth pixels of one step of the indents of lists and paragraphs.
Indents indentsOf(const QTextBlockFormat& format, const QTextList* list, double indentWidth);

/// The part of the left indent that is made of such steps, in pixels.
double steppedMargin(const QTextBlockFormat& format, const QTextList* list, double indentWidth);

} // namespace orvalis::rtf
