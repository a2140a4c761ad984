// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/calendar_look.h"

#include "skin/palette.h"
#include "skin/skin.h"

#include <QCalendarWidget>
#include <QEvent>
#include <QPainter>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace orvalis::skin {

namespace {

/// Paints a calendar's card behind its parts: a white sheet with the edge of a field.
class CardEdge : public QObject {
public:
    explicit CardEdge(QCalendarWidget& calendar)
        : QObject(&calendar) {
        calendar.setContentsMargins(1, 1, 1, 1);
        calendar.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            auto* calendar = static_cast<QWidget*>(watched);
            QPainter painter(calendar);
            painter.fillRect(calendar->rect(), QColor::fromRgba(colour::Line));
            painter.fillRect(calendar->rect().adjusted(1, 1, -1, -1), Qt::white);
        }
        return QObject::eventFilter(watched, event);
    }
};

QBrush iceHead() {
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setCoordinateMode(QGradient::ObjectMode);
    gradient.setColorAt(0, QColor::fromRgba(colour::IceLight));
    gradient.setColorAt(1, QColor::fromRgba(0xFFC3DEE6));
    return gradient;
}

void dressArrow(QCalendarWidget& calendar, const QString& name, QStringView picture) {
    if (auto* button = calendar.findChild<QToolButton*>(name))
        button->setIcon(icon(picture));
}

} // namespace

void dressCalendar(QCalendarWidget& calendar) {
    new CardEdge(calendar);
    calendar.setGridVisible(false);
    QTextCharFormat heads;
    heads.setForeground(QColor::fromRgba(colour::LabelInk));
    heads.setBackground(QColor::fromRgba(0xFFF3F8FA));
    calendar.setHeaderTextFormat(heads);
    QTextCharFormat weekend;
    weekend.setForeground(QColor::fromRgba(0xFF4F7A3A));
    calendar.setWeekdayTextFormat(Qt::Saturday, weekend);
    calendar.setWeekdayTextFormat(Qt::Sunday, weekend);
    // The head takes the colours of what is selected unless it is told otherwise.
    if (auto* head = calendar.findChild<QWidget*>(u"qt_calendar_navigationbar"_s)) {
        QPalette palette = head->palette();
        palette.setBrush(QPalette::Highlight, iceHead());
        palette.setColor(QPalette::HighlightedText, QColor::fromRgba(colour::TitleInk));
        palette.setColor(QPalette::ButtonText, QColor::fromRgba(colour::TitleInk));
        head->setPalette(palette);
    }
    dressArrow(calendar, u"qt_calendar_prevmonth"_s, u"calendar_back");
    dressArrow(calendar, u"qt_calendar_nextmonth"_s, u"calendar_next");
}

} // namespace orvalis::skin
