// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "skin/calendar_look.h"

#include "skin/faces.h"
#include "skin/palette.h"
#include "skin/skin.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace orvalis::skin {

namespace {

QBrush iceHead() {
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setCoordinateMode(QGradient::ObjectMode);
    gradient.setColorAt(0, QColor::fromRgba(colour::IceLight));
    gradient.setColorAt(1, QColor::fromRgba(0xFFC3DEE6));
    return gradient;
}

/// Paints a calendar's card behind its parts: a white sheet in the shape of a field, with its head.
/// The parts let the card through and keep off its edge, which they would cover in part where a
/// pixel of theirs is no whole pixel of the screen.
class Card : public QObject {
public:
    Card(QCalendarWidget& calendar, QWidget* head)
        : QObject(&calendar)
        , m_head(head) {
        calendar.setContentsMargins(Edge, Edge, Edge, Edge);
        calendar.installEventFilter(this);
        if (head)
            head->setAutoFillBackground(false);
        for (QAbstractItemView* days : calendar.findChildren<QAbstractItemView*>()) {
            days->viewport()->setAutoFillBackground(false);
            days->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto& calendar = *static_cast<QWidget*>(parent());
        if (watched == &calendar && event->type() == QEvent::Paint)
            paint(calendar);
        // The days have the keyboard for the whole calendar.
        const bool turns = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
        if (watched != &calendar && turns)
            calendar.update();
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr int Edge = 2; // pixels

    void paint(QWidget& calendar) {
        QPainter painter(&calendar);
        const QWidget* focused = QApplication::focusWidget();
        const bool hasFocus = focused != nullptr && calendar.isAncestorOf(focused);
        faces::field(painter, calendar.rect(), Qt::white,
                     QStyle::State_Enabled |
                         (hasFocus ? QStyle::State_HasFocus : QStyle::State_None));
        if (!m_head || !m_head->isVisibleTo(&calendar))
            return;
        QPainterPath inside;
        inside.addRoundedRect(QRectF(calendar.rect()).adjusted(1, 1, -1, -1), 2.5, 2.5);
        painter.setClipPath(inside);
        const QRect head(0, 0, calendar.width(), m_head->geometry().bottom() + 1);
        painter.fillRect(head, iceHead());
    }

    QPointer<QWidget> m_head;
};

void dressArrow(QCalendarWidget& calendar, const QString& name, QStringView picture) {
    if (auto* button = calendar.findChild<QToolButton*>(name))
        button->setIcon(icon(picture));
}

} // namespace

void dressCalendar(QCalendarWidget& calendar) {
    auto* head = calendar.findChild<QWidget*>(u"qt_calendar_navigationbar"_s);
    new Card(calendar, head);
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
    if (head) {
        QPalette palette = head->palette();
        palette.setColor(QPalette::HighlightedText, QColor::fromRgba(colour::TitleInk));
        palette.setColor(QPalette::ButtonText, QColor::fromRgba(colour::TitleInk));
        head->setPalette(palette);
    }
    dressArrow(calendar, u"qt_calendar_prevmonth"_s, u"calendar_back");
    dressArrow(calendar, u"qt_calendar_nextmonth"_s, u"calendar_next");
}

} // namespace orvalis::skin
