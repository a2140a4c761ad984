// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/alarm_label.h"

#include "skin/palette.h"
#include "skin/type.h"

#include <QPainter>
#include <QStyle>

namespace orvalis {

AlarmLabel::AlarmLabel(const QString& name, QWidget* parent)
    : Label(name, {}, parent) {}

void AlarmLabel::setLead(const QString& word) {
    m_lead = word.isEmpty() ? QString() : word + u' ';
    update();
}

void AlarmLabel::paintEvent(QPaintEvent*) {
    if (Caption().isEmpty())
        return;
    QPainter painter(this);
    const QFont shown = skin::fitted(font(), m_lead + Caption(), contentsRect().size());
    const QFontMetrics metrics(shown);
    const int lead = metrics.horizontalAdvance(m_lead);
    QRect words(0, 0, lead + metrics.horizontalAdvance(Caption()), metrics.height());
    words = QStyle::alignedRect(layoutDirection(), alignment(), words.size(), contentsRect());
    painter.setFont(shown);
    painter.setPen(QColor(skin::colour::GlassAlarm));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, m_lead);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(words.adjusted(lead, 0, lead, 0), Qt::AlignLeft | Qt::AlignVCenter, Caption());
}

} // namespace orvalis
