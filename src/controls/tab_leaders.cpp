// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/tab_leaders.h"

#include "controls/visible_lines.h"
#include "rtf/formats/format_properties.h"
#include "rtf/formats/paragraph_place.h"

#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace orvalis {
namespace {

using PaintContext = QAbstractTextDocumentLayout::PaintContext;

constexpr int MostSigns = 2000; // more than any line has room for

QChar signOf(rtf::TabLeader leader) {
    switch (leader) {
    case rtf::TabLeader::MiddleDots:
        return u'\u00b7';
    case rtf::TabLeader::Hyphens:
        return u'-';
    case rtf::TabLeader::Underline:
    case rtf::TabLeader::ThickLine:
        return u'_';
    case rtf::TabLeader::Equals:
        return u'=';
    case rtf::TabLeader::Dots:
    case rtf::TabLeader::None:
        break;
    }
    return u'.';
}

/// Pixels of the layout to one of those that its formats count in.
qreal layoutScale(const QTextDocument& document) {
    constexpr qreal FormatDots = 96; // to the inch
    const QPaintDevice* const device = document.documentLayout()->paintDevice();
    return device ? device->logicalDpiY() / FormatDots : 1;
}

/// Fills the space of one tab. The signs of all lines stand below each other.
void fill(QPainter& painter, const VisibleLine& part, int at, rtf::TabLeader leader,
          const PaintContext& context) {
    const QPointF corner = part.block.layout()->position();
    const auto [left, right] = std::minmax({part.line.cursorToX(at), part.line.cursorToX(at + 1)});
    QTextCursor cursor(part.block);
    cursor.setPosition(part.block.position() + at + 1);
    const QTextCharFormat format = cursor.charFormat();
    QPaintDevice* const device = part.block.document()->documentLayout()->paintDevice();
    const QFont font = device ? QFont(format.font(), device) : format.font();
    const QChar sign = signOf(leader);
    const qreal width = QFontMetricsF(font).horizontalAdvance(sign);
    if (width <= 0)
        return;
    const qreal first = std::ceil((corner.x() + left) / width);
    const qreal count = std::floor((corner.x() + right) / width) - first;
    if (count < 1)
        return;
    const QBrush ink = format.foreground();
    painter.setFont(font);
    painter.setPen(QPen(ink.style() == Qt::NoBrush ? context.palette.text() : ink, 0));
    painter.drawText(QPointF(first * width, corner.y() + part.line.y() + part.line.ascent()),
                     QString(std::min(int(count), MostSigns), sign));
}

} // namespace

void drawTabLeaders(QPainter& painter, const QTextDocument& document, const PaintContext& context) {
    painter.save();
    const qreal scale = layoutScale(document);
    const auto hasLeaders = [](const QTextBlock& block) {
        return block.blockFormat().hasProperty(rtf::ShownTabLeaders);
    };
    visitVisibleLines(document, context.clip, hasLeaders, [&](const VisibleLine& part) {
        const QTextBlockFormat format = part.block.blockFormat();
        for (qsizetype found = part.text.indexOf(u'\t'); found >= 0;
             found = part.text.indexOf(u'\t', found + 1)) {
            const int at = part.from + int(found);
            const qreal begin = part.line.cursorToX(at) - part.line.x();
            const rtf::TabLeader leader = rtf::leaderBehind(format, begin / scale);
            if (leader != rtf::TabLeader::None)
                fill(painter, part, at, leader, context);
        }
    });
    painter.restore();
}

} // namespace orvalis
