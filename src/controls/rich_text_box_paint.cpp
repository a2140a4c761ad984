// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/list_numbers.h"
#include "controls/rich_text_box.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

// What the box draws over the text: the numbers that the document cannot count, and the marks of
// blanks that do not break.

namespace orvalis {

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
    drawNoBreakMarks(painter, context.clip);
}

QTextCharFormat RichTextBox::selectionFormat() const {
    const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    QTextCharFormat format;
    format.setBackground(palette().brush(group, QPalette::Highlight));
    format.setForeground(palette().brush(group, QPalette::HighlightedText));
    return format;
}

/// A blank that does not break looks like any other; a small bracket under it tells.
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
        const QString text = block.text();
        for (qsizetype at = text.indexOf(QChar(QChar::Nbsp)); at >= 0;
             at = text.indexOf(QChar(QChar::Nbsp), at + 1)) {
            const QTextLine line = layout.lineForTextPosition(int(at));
            if (!line.isValid())
                continue;
            const qreal left = corner.x() + line.cursorToX(int(at)) + 1;
            const qreal right = corner.x() + line.cursorToX(int(at) + 1) - 1;
            const qreal base = corner.y() + line.y() + line.ascent() + 1;
            painter.drawPolyline(QPolygonF({QPointF(left, base - 2), QPointF(left, base),
                                            QPointF(right, base), QPointF(right, base - 2)}));
        }
    }
}

} // namespace orvalis
