// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/visible_lines.h"

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <tuple>
#include <utility>

namespace orvalis {
namespace {

/// The first line that reaches below a height, which counts from the paragraph's top.
int firstLineBelow(const QTextLayout& layout, qreal height) {
    int low = 0;
    int high = layout.lineCount();
    while (low < high) {
        const int middle = (low + high) / 2;
        const QTextLine line = layout.lineAt(middle);
        if (line.y() + line.height() <= height)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

/// The characters of a line that stand between two places; of a line of usual length, all of them.
std::pair<int, int> charactersWithin(const QTextLine& line, qreal left, qreal right) {
    constexpr int Usual = 2000;
    const int from = line.textStart();
    const int to = from + line.textLength();
    if (line.textLength() <= Usual)
        return {from, to};
    const auto [first, last] = std::minmax({line.xToCursor(left), line.xToCursor(right)});
    return {std::max(from, first - 1), std::min(to, last + 1)};
}

VisibleLine partOf(const QTextBlock& block, const QTextLine& line, const QRectF& area) {
    VisibleLine part{block, line, 0, 0, {}};
    const qreal corner = block.layout()->position().x();
    std::tie(part.from, part.to) =
        charactersWithin(line, area.left() - corner, area.right() - corner);
    QTextCursor characters(block);
    characters.setPosition(block.position() + part.from);
    characters.setPosition(block.position() + part.to, QTextCursor::KeepAnchor);
    part.text = characters.selectedText();
    return part;
}

} // namespace

void visitVisibleLines(const QTextDocument& document, const QRectF& area,
                       const std::function<bool(const QTextBlock&)>& wanted,
                       const std::function<void(const VisibleLine&)>& visit) {
    const int first = document.documentLayout()->hitTest(area.topLeft(), Qt::FuzzyHit);
    for (QTextBlock block = document.findBlock(first); block.isValid(); block = block.next()) {
        const QTextLayout& layout = *block.layout();
        const qreal top = layout.position().y();
        if (top > area.bottom())
            break;
        if (!wanted(block))
            continue;
        for (int i = firstLineBelow(layout, area.top() - top); i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            if (top + line.y() > area.bottom())
                break;
            visit(partOf(block, line, area));
        }
    }
}

} // namespace orvalis
