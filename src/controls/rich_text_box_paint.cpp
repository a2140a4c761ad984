// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/list_numbers.h"
#include "controls/rich_text_box.h"
#include "controls/tab_leaders.h"
#include "controls/visible_lines.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <utility>

// What the box draws over the text: the labels of lists, what fills the space of tabs, and the
// marks of blanks that do not break; and when it draws nothing at all.

namespace orvalis {

RichTextBox::Listener::Listener(RichTextBox& box, rtf::Progress progress)
    : m_box(box) {
    m_box.setUpdatesEnabled(false);
    turnTo(std::move(progress));
}

RichTextBox::Listener::~Listener() {
    m_box.m_progress = {};
    m_box.setUpdatesEnabled(true);
}

void RichTextBox::Listener::turnTo(rtf::Progress progress) {
    m_box.m_progress = std::move(progress);
}

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
    drawTabLeaders(painter, *document(), context);
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
    const auto every = [](const QTextBlock&) { return true; };
    visitVisibleLines(*document(), clip, every, [&](const VisibleLine& part) {
        const QPointF corner = part.block.layout()->position();
        for (qsizetype found = part.text.indexOf(QChar(QChar::Nbsp)); found >= 0;
             found = part.text.indexOf(QChar(QChar::Nbsp), found + 1)) {
            const int at = part.from + int(found);
            const qreal left = corner.x() + part.line.cursorToX(at) + 1;
            const qreal right = corner.x() + part.line.cursorToX(at + 1) - 1;
            const qreal base = corner.y() + part.line.y() + part.line.ascent() + 1;
            painter.drawPolyline(QPolygonF({QPointF(left, base - 2), QPointF(left, base),
                                            QPointF(right, base), QPointF(right, base - 2)}));
        }
    });
}

} // namespace orvalis
