// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/list_numbers.h"

#include "rtf/formats/format_properties.h"
#include "rtf/formats/list_formats.h"
#include "rtf/formats/paragraph_place.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextList>

#include <algorithm>

namespace orvalis {
namespace {

using PaintContext = QAbstractTextDocumentLayout::PaintContext;

/// How the number of a block is shown selected, which it is with the end of the paragraph before;
/// null where it is not.
const QTextCharFormat* selectionAt(const QTextBlock& block, const PaintContext& context) {
    for (const auto& selection : context.selections)
        if (block.position() > selection.cursor.selectionStart() &&
            block.position() < selection.cursor.selectionEnd())
            return &selection.format;
    return nullptr;
}

/// How far ahead of its text a label begins. One that has outgrown its room stands close to it.
qreal labelDistance(const QTextBlock& item, qreal width, qreal scale) {
    const QTextBlockFormat format = item.blockFormat();
    const int side = item.textList()->format().intProperty(rtf::ListLabelSide);
    const qreal hanging = -rtf::labelOffset(format) / rtf::TwipsPerPixel * scale;
    constexpr qreal Sides =
        2; // the left side hangs by nothing of the width, the right by all of it
    return std::max(hanging + width * side / Sides, width);
}

void drawNumber(QPainter& painter, const QTextBlock& item, const PaintContext& context) {
    const QTextLayout& layout = *item.layout();
    if (layout.lineCount() == 0)
        return;
    QPaintDevice* const device = item.document()->documentLayout()->paintDevice();
    const QTextCharFormat mark = item.charFormat();
    const QFont font = device ? QFont(mark.font(), device) : mark.font();
    const QFontMetrics metrics(font);
    const QString label = rtf::shownLabel(item);
    const bool leftToRight = item.textDirection() == Qt::LeftToRight;

    const QRectF text = layout.lineAt(0).naturalTextRect();
    const int width = metrics.horizontalAdvance(label);
    const QPoint corner = layout.position().toPoint() + text.topLeft().toPoint();
    QRectF box(corner, QSizeF(width, metrics.height()));
    const qreal scale = device ? device->logicalDpiY() / 96.0 : 1;
    const qreal distance = labelDistance(item, width, scale);
    box.translate(leftToRight ? -distance : text.width() + distance - width, 0);

    if (const QTextCharFormat* selection = selectionAt(item, context)) {
        painter.fillRect(box, selection->background());
        painter.setPen(QPen(selection->foreground(), 0));
    } else {
        const QBrush ink = mark.foreground();
        painter.setPen(QPen(ink == Qt::NoBrush ? context.palette.text() : ink, 0));
    }
    QTextLayout line(label, font, device);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(item.textDirection());
    line.setTextOption(option);
    line.beginLayout();
    line.createLine().setLeadingIncluded(true);
    line.endLayout();
    line.draw(&painter, box.topLeft());
}

} // namespace

void drawListNumbers(QPainter& painter, const QTextDocument& document,
                     const PaintContext& context) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QAbstractTextDocumentLayout& layout = *document.documentLayout();
    const int first = layout.hitTest(context.clip.topLeft(), Qt::FuzzyHit);
    for (QTextBlock block = document.findBlock(first); block.isValid(); block = block.next()) {
        if (block.layout()->position().y() > context.clip.bottom())
            break;
        if (rtf::hidesLabel(block.blockFormat()) && block.textList())
            drawNumber(painter, block, context);
    }
    painter.restore();
}

} // namespace orvalis
