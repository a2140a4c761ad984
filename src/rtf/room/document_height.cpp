// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/document_height.h"

#include "rtf/room/format_heights.h"
#include "rtf/room/paragraph_height.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace orvalis::rtf {

namespace {

/// Of a document, or of a part of one.
struct Measures {
    Measures(const QFont& defaultFont, const QTextCharFormat& changedLetters)
        : own(defaultFont, measuredHeight)
        , changed(defaultFont, measuredHeight, changedLetters) {}

    FormatHeights own;
    FormatHeights changed; ///< with the formats that count beside them
};

/// \param begin where the run begins in the document.
void addFragment(ParagraphHeight& paragraph, const QTextFragment& run, int begin, QStringView text,
                 Measures& measures, const ParagraphShape& shape, const ChangedFormats& changed) {
    const FormatHeights::Entry& own = measures.own.of(run);
    if (own.isPicture) {
        for (int picture = 0; picture < run.length(); ++picture)
            paragraph.addPicture(own.picture, own.letters, shape);
        return;
    }
    const int end = begin + run.length();
    if (!changed.touches(begin, end) || changed.letters.isEmpty()) {
        paragraph.add(text, own.letters, shape);
        return;
    }
    const int from = std::max(begin, changed.from) - begin;
    const int to = std::min(end, changed.to) - begin;
    paragraph.add(text.first(from), own.letters, shape);
    paragraph.add(text.sliced(from, to - from), measures.changed.of(run).letters, shape);
    paragraph.add(text.sliced(to), own.letters, shape);
}

/// \param begin where the block begins in the document; a document seeks for it.
double heightOfBlock(const QTextBlock& block, int begin, Measures& measures,
                     const ParagraphShape& shape, const ChangedFormats& changed) {
    const bool inside = changed.touches(begin, begin + block.length());
    FormatHeights& marks = inside ? measures.changed : measures.own;
    ParagraphHeight paragraph(marks.of(block).letters, shape);
    if (block.length() == 1)
        return paragraph.height();
    const QString text = block.text();
    int at = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment run = it.fragment();
        addFragment(paragraph, run, begin + at, QStringView(text).sliced(at, run.length()),
                    measures, shape, changed);
        at += run.length();
    }
    return paragraph.height();
}

} // namespace

double paragraphHeight(const QTextBlock& paragraph, const ParagraphShape& shape) {
    Measures measures(paragraph.document()->defaultFont(), {});
    return heightOfBlock(paragraph, paragraph.position(), measures, shape, {});
}

double documentHeight(const QTextDocument& document, const ChangedFormats& changed) {
    Measures measures(document.defaultFont(), changed.letters);
    int lastIndex = -1;
    bool lastInside = false;
    ParagraphShape shape;
    double height = 0;
    int begin = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const bool inside = changed.touches(begin, begin + block.length());
        if (block.blockFormatIndex() != lastIndex || inside != lastInside) {
            lastIndex = block.blockFormatIndex();
            lastInside = inside;
            QTextBlockFormat format = block.blockFormat();
            if (inside)
                format.merge(changed.paragraphs);
            shape = paragraphShape(format);
            if (inside)
                shape.room = std::max(0.0, shape.room - changed.narrower);
        }
        height += heightOfBlock(block, begin, measures, shape, changed);
        begin += block.length();
    }
    return height;
}

} // namespace orvalis::rtf
