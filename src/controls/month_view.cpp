// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/month_view.h"

#include "runtime/failure.h"

#include <QEvent>
#include <QTableView>

#include <algorithm>

namespace orvalis {

namespace {

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
    : QCalendarWidget(parent) {
    setFirstDayOfWeek(Qt::Sunday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setDateEditEnabled(false);
    // The calendar tells a click on a date; a date chosen by the arrow keys is told as a change of
    // the selection, like one that code sets. The keys are watched to tell the two apart.
    for (QAbstractItemView* days : findChildren<QAbstractItemView*>()) {
        days->installEventFilter(this);
        days->viewport()->installEventFilter(this);
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

bool MonthView::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        m_keyed = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        m_keyed = false;
        break;
    default:
        break;
    }
    return QCalendarWidget::eventFilter(watched, event);
}

} // namespace orvalis
