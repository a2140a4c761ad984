// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/uneven_words.h"

#include "rtf/room/format_heights.h"
#include "rtf/room/long_words.h"

#include <QTextBlock>

#include <algorithm>
#include <vector>

namespace orvalis::rtf {

namespace {

struct Run {
    qsizetype end; // in the paragraph
    LetterHeight letters;
    double line; // that they need there
};

std::vector<Run> runsOf(const QTextBlock& paragraph, FormatHeights& heights,
                        const ParagraphShape& shape) {
    std::vector<Run> runs;
    qsizetype end = 0;
    for (auto it = paragraph.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const FormatHeights::Entry& format = heights.of(fragment);
        const LetterHeight& letters = format.letters;
        const double line = heightOfLine(letters, shape) + format.picture * shape.multiple;
        end += fragment.length();
        if (!runs.empty() && runs.back().line == line)
            runs.back().end = end;
        else
            runs.push_back({end, letters, line});
    }
    return runs;
}

/// The lines that a part of a word fills.
double linesOf(QStringView text, const Run& run, const ParagraphShape& shape) {
    return linesOfRun(text, run.letters, shape) - 1;
}

} // namespace

double heightLentInWords(const QTextBlock& paragraph, FormatHeights& heights) {
    const auto first = paragraph.begin();
    if (first.atEnd() || first.fragment().length() == paragraph.length() - 1)
        return 0; // one run
    const ParagraphShape shape = paragraphShape(paragraph.blockFormat());
    const std::vector<Run> runs = runsOf(paragraph, heights, shape);
    if (runs.size() < 2)
        return 0;
    const QString text = paragraph.text();
    double lent = 0;
    auto run = runs.begin();
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = wordEnd(text, start);
        double highest = run->line;
        for (auto next = run; next->end < end; ++next)
            highest = std::max(highest, (next + 1)->line);
        for (qsizetype from = start; from < end;) {
            const qsizetype to = std::min(end, run->end);
            lent += linesOf(QStringView(text).sliced(from, to - from), *run, shape) *
                    (highest - run->line);
            from = to;
            if (run->end == to && run + 1 != runs.end())
                ++run;
        }
        start = end;
    }
    return lent;
}

} // namespace orvalis::rtf
