// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/broken_lines.h"

#include "controls/range_formats.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace orvalis {
namespace {

/// Words of a line, by their positions in the paragraph.
struct Words {
    int start;
    int end;
};

bool isBlank(QChar c) {
    return c == u' ' || c == QChar::Nbsp;
}

/// Those of a line that stand behind its tabs. None where some run to the left: these are not in
/// the order in which they stand.
Words wordsOf(const QString& text, const QTextLine& line) {
    const auto runsLeft = [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    };
    const int start = line.textStart();
    int end = start + line.textLength() - 1;
    const QStringView shown = QStringView(text).sliced(start, end - start);
    if (std::any_of(shown.cbegin(), shown.cend(), runsLeft))
        return {start, start};
    const int behindTabs = start + int(shown.lastIndexOf(u'\t')) + 1;
    while (end > behindTabs && isBlank(text[end - 1]))
        --end;
    return {behindTabs, end};
}

/// Goes through the lines of a paragraph and the runs in them together.
class LineFiller {
public:
    explicit LineFiller(const QTextBlock& block)
        : m_block(block)
        , m_text(block.text())
        , m_run(block.begin()) {}

    void addTo(std::vector<RangeFormat>& lines) {
        constexpr qreal Rounding = 1;
        const QTextLayout& layout = *m_block.layout();
        for (int i = 0; i < layout.lineCount() && lines.size() < MostRanges; ++i) {
            const QTextLine line = layout.lineAt(i);
            const int end = line.textStart() + line.textLength();
            if (line.textLength() == 0 || m_text[end - 1] != QChar::LineSeparator)
                continue;
            const Words words = wordsOf(m_text, line);
            const int gaps = gapsIn(words);
            const qreal room = line.x() + line.width() - line.cursorToX(words.end) - Rounding;
            if (gaps <= 0 || room <= 0)
                continue;
            QTextCharFormat wider;
            wider.setFontWordSpacing(room / gaps);
            const int start = m_block.position();
            lines.push_back({start + words.start, start + words.end, wider});
        }
    }

private:
    int startOf(const QTextFragment& run) const { return run.position() - m_block.position(); }
    int endOf(const QTextFragment& run) const { return startOf(run) + run.length(); }

    /// The layout widens the last blank of those in a row, in each run of letters that look alike.
    int gapsIn(const Words& words) {
        while (!m_run.atEnd() && endOf(m_run.fragment()) <= words.start)
            ++m_run;
        int gaps = 0;
        for (auto run = m_run; !run.atEnd() && startOf(run.fragment()) < words.end; ++run) {
            const int end = std::min(endOf(run.fragment()), words.end);
            for (int at = std::max(startOf(run.fragment()), words.start); at < end; ++at)
                gaps += int(isBlank(m_text[at]) && (at + 1 == end || !isBlank(m_text[at + 1])));
        }
        return gaps;
    }

    QTextBlock m_block;
    QString m_text;
    QTextBlock::iterator m_run;
};

} // namespace

void fillBrokenLines(QTextDocument& document) {
    std::vector<RangeFormat> lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const bool isFull = block.blockFormat().alignment() & Qt::AlignJustify;
        if (isFull && lines.size() < MostRanges)
            LineFiller(block).addTo(lines);
    }
    setFormats(document, lines, &QTextCursor::mergeCharFormat);
}

} // namespace orvalis
