// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/shapes.h"

#include "runtime/twips.h"

#include <QPainter>

namespace orvalis {

Shape::Shape(const QString& name, QWidget* parent)
    : QFrame(parent) {
    setObjectName(name);
    setFrameStyle(QFrame::Box | QFrame::Plain);
}

Line::Line(const QString& name, QWidget* parent)
    : QWidget(parent) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Line::setEnds(const QLineF& twips) {
    m_ends = twips;
    const QPoint from(twipsToPixels(twips.x1()), twipsToPixels(twips.y1()));
    const QPoint to(twipsToPixels(twips.x2()), twipsToPixels(twips.y2()));
    const QRect box = QRect(from, QSize(1, 1)).united(QRect(to, QSize(1, 1)));
    setGeometry(box);
    update();
}

void Line::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawLine(QPoint(twipsToPixels(m_ends.x1()), twipsToPixels(m_ends.y1())) - pos(),
                     QPoint(twipsToPixels(m_ends.x2()), twipsToPixels(m_ends.y2())) - pos());
}

} // namespace orvalis
