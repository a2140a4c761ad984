// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCalendarWidget>

namespace orvalis {

/// The calendar: one month with Sunday first and no week numbers, and one selected date.
class MonthView : public QCalendarWidget {
    Q_OBJECT
public:
    explicit MonthView(QWidget* parent = nullptr);

    QDate Value() const { return selectedDate(); }
    /// Selects the date and turns to its month. Fails with 380 for a date that the calendar lacks.
    void setValue(const QDate& date);

    int Day() const { return Value().day(); }
    int Month() const { return Value().month(); }
    int Year() const { return Value().year(); }
    /// Change one part of the selected date. A day that the new month lacks becomes its last day.
    /// Fail with 380 for a day that the present month lacks, and for a month or year that is none.
    void setDay(int day);
    void setMonth(int month);
    void setYear(int year);

    /// 1 for Sunday to 7 for Saturday.
    int DayOfWeek() const;
    /// Week of the selected date in its own year. Weeks begin on Sunday and week 1 holds 1 January,
    /// so the last days of December can be in week 53.
    int Week() const;

    /// Draws the control anew.
    void Refresh();

    /// The date that is marked as today's; none at first.
    void setToday(const QDate& date);

signals:
    /// The user chose a date, by mouse or by key; the same date again counts when it is clicked.
    void DateClick(const QDate& date);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;

private:
    void pointAt(QWidget& days, const QPoint& place);
    QColor ink(const QDate& date, bool pointedAt) const;

    QDate m_today;
    QPoint m_pointer; ///< Where the pointer is over the days; outside of them for none.
    bool m_keyed = false;
};

/// See MonthView::Week.
int weekOfYear(const QDate& date);

} // namespace orvalis
