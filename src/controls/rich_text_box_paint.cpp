// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/list_numbers.h"
#include "controls/rich_text_box.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <utility>

// What the box draws over the text: the numbers that the document cannot count, and the marks of
// blanks that do not break.

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

} // namespace

void RichTextBox::paintEvent(QPaintEvent* event) {
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    painter.setClipRect(event->rect());
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = painter.clipBoundingRect();
    context.palette = palette();
    if (textCursor().hasSelection())
        context.selections = {{textCursor(), selectionFormat()}};
    drawListNumbers(painter, *document(), context);
    if (m_marksNoBreakBlanks)
        drawNoBreakMarks(painter, context.clip);
}

QTextCharFormat RichTextBox::selectionFormat() const {
    const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    QTextCharFormat format;
    format.setBackground(palette().brush(group, QPalette::Highlight));
    format.setForeground(palette().brush(group, QPalette::HighlightedText));
    return format;
}

bool RichTextBox::marksNoBreakBlanks() const {
    return m_marksNoBreakBlanks;
}

void RichTextBox::setMarksNoBreakBlanks(bool on) {
    m_marksNoBreakBlanks = on;
    viewport()->update();
}

/// A blank that does not break looks like any other; where each character has a meaning of its own
/// a small bracket under it tells.
void RichTextBox::drawNoBreakMarks(QPainter& painter, const QRectF& clip) {
    QColor ink = palette().color(QPalette::Text);
    ink.setAlphaF(0.45F);
    painter.setPen(QPen(ink, 1));
    const int first = document()->documentLayout()->hitTest(clip.topLeft(), Qt::FuzzyHit);
    for (QTextBlock block = document()->findBlock(first); block.isValid(); block = block.next()) {
        const QTextLayout& layout = *block.layout();
        const QPointF corner = layout.position();
        if (corner.y() > clip.bottom())
            break;
        // A paragraph can have more lines than a thousand windows.
        for (int i = firstLineBelow(layout, clip.top() - corner.y()); i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            if (corner.y() + line.y() > clip.bottom())
                break;
            drawNoBreakMarks(painter, block, line, clip);
        }
    }
}

void RichTextBox::drawNoBreakMarks(QPainter& painter, const QTextBlock& block,
                                   const QTextLine& line, const QRectF& clip) {
    const QPointF corner = block.layout()->position();
    const auto [from, to] =
        charactersWithin(line, clip.left() - corner.x(), clip.right() - corner.x());
    QTextCursor part(document());
    part.setPosition(block.position() + from);
    part.setPosition(block.position() + to, QTextCursor::KeepAnchor);
    const QString text = part.selectedText();
    for (qsizetype found = text.indexOf(QChar(QChar::Nbsp)); found >= 0;
         found = text.indexOf(QChar(QChar::Nbsp), found + 1)) {
        const int at = from + int(found);
        const qreal left = corner.x() + line.cursorToX(at) + 1;
        const qreal right = corner.x() + line.cursorToX(at + 1) - 1;
        const qreal base = corner.y() + line.y() + line.ascent() + 1;
        painter.drawPolyline(QPolygonF({QPointF(left, base - 2), QPointF(left, base),
                                        QPointF(right, base), QPointF(right, base - 2)}));
    }
}

} // namespace orvalis
