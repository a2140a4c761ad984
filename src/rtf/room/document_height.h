// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/room/layout_height.h"

#include <QTextFormat>

class QTextBlock;
class QTextDocument;

namespace orvalis::rtf {

/// Formats that count for a part of a document beside those that it has.
struct ChangedFormats {
    int from = 0;
    int to = 0;
    QTextCharFormat letters;
    QTextBlockFormat paragraphs;
    double narrower = 0; ///< pixels that their lines lose

    bool touches(int begin, int end) const { return from < end && to > begin; }
};

/// The height that a paragraph has at most in a shape.
double paragraphHeight(const QTextBlock& paragraph, const ParagraphShape& shape);

/// The height that a document has at most, told by layout_height.h, in a time that grows with it.
double documentHeight(const QTextDocument& document, const ChangedFormats& changed = {});

} // namespace orvalis::rtf
