// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/month_view.h"

#include "runtime/failure.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QTableView>
#include <QTextCharFormat>

#include <algorithm>

namespace orvalis {

namespace {

constexpr QPoint Nowhere(-1, -1);
constexpr qreal CornerRadius = 4;
constexpr qreal TodayRing = 1.4; // pixels
constexpr int HoverVeil = 40;    // of 255

int fromSunday(const QDate& date) {
    return date.dayOfWeek() % 7;
}

QDate dayOrLastOf(int year, int month, int day) {
    return QDate(year, month, std::min(day, QDate(year, month, 1).daysInMonth()));
}

} // namespace

int weekOfYear(const QDate& date) {
    return (date.dayOfYear() - 1 + fromSunday(QDate(date.year(), 1, 1))) / 7 + 1;
}

MonthView::MonthView(QWidget* parent)
    : QCalendarWidget(parent)
    , m_pointer(Nowhere) {
    setFirstDayOfWeek(Qt::Sunday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setDateEditEnabled(false);
    // The calendar tells a click on a date; a date chosen by the arrow keys is told as a change of
    // the selection, like one that code sets. The keys are watched to tell the two apart.
    for (QTableView* days : findChildren<QTableView*>()) {
        // All weeks of a month share the room there is; the last one is not to be cut off.
        days->verticalHeader()->setMinimumSectionSize(1);
        days->installEventFilter(this);
        days->viewport()->installEventFilter(this);
        days->viewport()->setMouseTracking(true);
    }
    connect(this, &QCalendarWidget::clicked, this, &MonthView::DateClick);
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        if (m_keyed)
            emit DateClick(Value());
    });
}

void MonthView::setValue(const QDate& date) {
    if (!date.isValid() || date < minimumDate() || date > maximumDate())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    m_keyed = false;
    setSelectedDate(date);
    setCurrentPage(date.year(), date.month());
}

void MonthView::setDay(int day) {
    setValue(QDate(Year(), Month(), day));
}

void MonthView::setMonth(int month) {
    setValue(dayOrLastOf(Year(), month, Day()));
}

void MonthView::setYear(int year) {
    setValue(dayOrLastOf(year, Month(), Day()));
}

int MonthView::DayOfWeek() const {
    return fromSunday(Value()) + 1;
}

int MonthView::Week() const {
    return weekOfYear(Value());
}

void MonthView::Refresh() {
    updateCells();
}

void MonthView::setToday(const QDate& date) {
    if (m_today == date)
        return;
    m_today = date;
    updateCells();
}

void MonthView::pointAt(QWidget& days, const QPoint& place) {
    m_pointer = place;
    days.update();
}

bool MonthView::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        m_keyed = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        m_keyed = false;
        break;
    case QEvent::MouseMove:
        pointAt(*static_cast<QWidget*>(watched), static_cast<QMouseEvent*>(event)->pos());
        break;
    case QEvent::Leave:
    case QEvent::Hide:
        pointAt(*static_cast<QWidget*>(watched), Nowhere);
        break;
    default:
        break;
    }
    return QCalendarWidget::eventFilter(watched, event);
}

QColor MonthView::ink(const QDate& date, bool pointedAt) const {
    if (!isEnabled())
        return palette().color(QPalette::Disabled, QPalette::Text);
    if (date.month() != monthShown())
        return palette().color(QPalette::PlaceholderText);
    if (date == Value())
        return palette().color(QPalette::HighlightedText);
    if (pointedAt)
        return palette().color(QPalette::Link);
    const QBrush ofWeekday =
        weekdayTextFormat(static_cast<Qt::DayOfWeek>(date.dayOfWeek())).foreground();
    return ofWeekday.style() == Qt::NoBrush ? palette().color(QPalette::Text) : ofWeekday.color();
}

void MonthView::paintCell(QPainter* painter, const QRect& rect, QDate date) const {
    const bool pointedAt = isEnabled() && rect.contains(m_pointer);
    const QRectF face = QRectF(rect).adjusted(3, 0.5, -3, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    if (date == Value()) {
        const QColor chosen = palette().color(QPalette::Highlight);
        painter->setBrush(chosen);
        painter->setPen(QPen(chosen.darker(pointedAt ? 150 : 120), 1));
        painter->drawRoundedRect(face, CornerRadius, CornerRadius);
    } else if (pointedAt) {
        QColor veil = palette().color(QPalette::Link);
        veil.setAlpha(HoverVeil);
        painter->setBrush(veil);
        painter->drawRoundedRect(face, CornerRadius, CornerRadius);
    }
    QFont letters = font();
    if (date == m_today) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(palette().color(QPalette::Link), TodayRing));
        painter->drawRoundedRect(face, CornerRadius, CornerRadius);
        letters.setBold(true);
    }
    painter->setFont(letters);
    painter->setPen(ink(date, pointedAt));
    painter->drawText(rect, Qt::AlignCenter, locale().toString(date.day()));
    painter->restore();
}

} // namespace orvalis
