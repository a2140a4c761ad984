// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/month_view.h"

#include "runtime/failure.h"
#include "support/test_main.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTableView>

using namespace orvalis;

namespace {

/// The cell of a date in the month shown; row 0 of the calendar's table holds the day names.
QPoint cellOf(const QTableView& days, const QDate& date) {
    const QDate first(date.year(), date.month(), 1);
    int before = first.dayOfWeek() % 7;
    if (before == 0)
        before = 7; // a month that begins on Sunday is shown behind a week of the month before
    const int place = before + date.day() - 1;
    return days.visualRect(days.model()->index(1 + place / 7, place % 7)).center();
}

} // namespace

class MonthViewTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void weeksBeginOnSundayAndAreNotNumbered();
    void partsOfTheValueCanBeReadAndSet();
    void aDayThatTheNewMonthLacksBecomesItsLast();
    void partsThatAreNoneAreRefused_data();
    void partsThatAreNoneAreRefused();
    void daysOfTheWeekCountFromSunday_data();
    void daysOfTheWeekCountFromSunday();
    void weekOneHoldsTheFirstOfJanuary_data();
    void weekOneHoldsTheFirstOfJanuary();
    void aClickOnADateIsToldOnce();
    void aClickOnTheSelectedDateIsToldToo();
    void aDateChosenByKeyIsTold();
    void aDateSetByCodeIsNotTold();
    void settingTheValueTurnsBackToItsMonth();
    void refreshKeepsTheValue();
    void theLastWeekIsNotCutOff();
    void theDayUnderThePointerIsMarked();
    void todayIsMarkedAlsoWhereItIsSelected();
    void aMarkMovesWithTheDay();

private:
    /// The picture of a day's cell, the day's own figures included.
    QImage pictureOf(const QDate& date) const {
        const QPoint middle = cellOf(*days(), date);
        const QRect cell = days()->visualRect(days()->indexAt(middle));
        return days()->viewport()->grab(cell).toImage();
    }
    QTableView* days() const { return m_calendar->findChild<QTableView*>(); }
    std::unique_ptr<MonthView> m_calendar;
};

void MonthViewTest::init() {
    m_calendar = std::make_unique<MonthView>();
    m_calendar->setValue(QDate(2026, 3, 14));
    m_calendar->resize(320, 240);
    m_calendar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_calendar.get()));
}

void MonthViewTest::weeksBeginOnSundayAndAreNotNumbered() {
    QCOMPARE(m_calendar->firstDayOfWeek(), Qt::Sunday);
    QCOMPARE(m_calendar->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
}

void MonthViewTest::partsOfTheValueCanBeReadAndSet() {
    QCOMPARE(m_calendar->Day(), 14);
    QCOMPARE(m_calendar->Month(), 3);
    QCOMPARE(m_calendar->Year(), 2026);
    m_calendar->setDay(2);
    m_calendar->setMonth(11);
    m_calendar->setYear(1999);
    QCOMPARE(m_calendar->Value(), QDate(1999, 11, 2));
}

void MonthViewTest::aDayThatTheNewMonthLacksBecomesItsLast() {
    m_calendar->setValue(QDate(2024, 3, 31));
    m_calendar->setMonth(2);
    QCOMPARE(m_calendar->Value(), QDate(2024, 2, 29));
    m_calendar->setYear(2023);
    QCOMPARE(m_calendar->Value(), QDate(2023, 2, 28));
}

void MonthViewTest::partsThatAreNoneAreRefused_data() {
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("value");
    QTest::newRow("day 0") << QStringLiteral("day") << 0;
    QTest::newRow("day 32") << QStringLiteral("day") << 32;
    QTest::newRow("month 0") << QStringLiteral("month") << 0;
    QTest::newRow("month 13") << QStringLiteral("month") << 13;
    QTest::newRow("year 0") << QStringLiteral("year") << 0;
    QTest::newRow("year 10000") << QStringLiteral("year") << 10000;
}

void MonthViewTest::partsThatAreNoneAreRefused() {
    QFETCH(QString, part);
    QFETCH(int, value);
    const auto failure = firstFailure([&] {
        if (part == QStringLiteral("day"))
            m_calendar->setDay(value);
        else if (part == QStringLiteral("month"))
            m_calendar->setMonth(value);
        else
            m_calendar->setYear(value);
    });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidPropertyValue);
    QCOMPARE(m_calendar->Value(), QDate(2026, 3, 14));
    QVERIFY(firstFailure([&] { m_calendar->setValue(QDate()); }).has_value());
}

void MonthViewTest::daysOfTheWeekCountFromSunday_data() {
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("day");
    for (int i = 0; i < 7; ++i)
        QTest::addRow("%d", i + 1) << QDate(2002, 6, 9 + i) << i + 1;
}

void MonthViewTest::daysOfTheWeekCountFromSunday() {
    QFETCH(QDate, date);
    QFETCH(int, day);
    m_calendar->setValue(date);
    QCOMPARE(m_calendar->DayOfWeek(), day);
}

void MonthViewTest::weekOneHoldsTheFirstOfJanuary_data() {
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("week");
    QTest::newRow("1 January on a Tuesday") << QDate(2002, 1, 1) << 1;
    QTest::newRow("the first Saturday") << QDate(2002, 1, 5) << 1;
    QTest::newRow("the first Sunday after") << QDate(2002, 1, 6) << 2;
    QTest::newRow("1 January on a Sunday") << QDate(2023, 1, 1) << 1;
    QTest::newRow("the Saturday behind it") << QDate(2023, 1, 7) << 1;
    QTest::newRow("1 January on a Saturday") << QDate(2022, 1, 1) << 1;
    QTest::newRow("the day behind it") << QDate(2022, 1, 2) << 2;
    QTest::newRow("the end of December") << QDate(2002, 12, 31) << 53;
    QTest::newRow("the end of a leap year that began on Saturday") << QDate(2000, 12, 31) << 54;
    QTest::newRow("midsummer") << QDate(2002, 6, 12) << 24;
}

void MonthViewTest::weekOneHoldsTheFirstOfJanuary() {
    QFETCH(QDate, date);
    QFETCH(int, week);
    m_calendar->setValue(date);
    QCOMPARE(m_calendar->Week(), week);
}

void MonthViewTest::aClickOnADateIsToldOnce() {
    QSignalSpy told(m_calendar.get(), &MonthView::DateClick);
    QTest::mouseClick(days()->viewport(), Qt::LeftButton, {}, cellOf(*days(), QDate(2026, 3, 20)));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.first().first().toDate(), QDate(2026, 3, 20));
    QCOMPARE(m_calendar->Value(), QDate(2026, 3, 20));
}

void MonthViewTest::aClickOnTheSelectedDateIsToldToo() {
    QSignalSpy told(m_calendar.get(), &MonthView::DateClick);
    QTest::keyClick(days(), Qt::Key_Right);
    QTest::mouseClick(days()->viewport(), Qt::LeftButton, {}, cellOf(*days(), QDate(2026, 3, 15)));
    QCOMPARE(told.count(), 2);
}

void MonthViewTest::aDateChosenByKeyIsTold() {
    QSignalSpy told(m_calendar.get(), &MonthView::DateClick);
    QTest::keyClick(days(), Qt::Key_Right);
    QCOMPARE(told.count(), 1);
    QCOMPARE(m_calendar->Value(), QDate(2026, 3, 15));
}

void MonthViewTest::aDateSetByCodeIsNotTold() {
    QTest::keyClick(days(), Qt::Key_Right);
    QSignalSpy told(m_calendar.get(), &MonthView::DateClick);
    m_calendar->setValue(QDate(2026, 5, 1));
    m_calendar->setDay(3);
    QCOMPARE(told.count(), 0);
}

void MonthViewTest::settingTheValueTurnsBackToItsMonth() {
    m_calendar->showNextMonth();
    m_calendar->setValue(m_calendar->Value());
    QCOMPARE(m_calendar->monthShown(), 3);
    QCOMPARE(m_calendar->yearShown(), 2026);
}

void MonthViewTest::refreshKeepsTheValue() {
    m_calendar->Refresh();
    QCOMPARE(m_calendar->Value(), QDate(2026, 3, 14));
}

void MonthViewTest::theLastWeekIsNotCutOff() {
    // Figures that ask for more room than there is share what there is.
    for (const int points : {8, 12, 16, 20})
        for (const int height : {150, 158, 166, 240}) {
            QFont letters = m_calendar->font();
            letters.setPointSize(points);
            m_calendar->setFont(letters);
            m_calendar->resize(248, height);
            QApplication::processEvents();
            const QRect last = days()->visualRect(days()->model()->index(6, 0));
            QVERIFY2(days()->viewport()->rect().contains(last),
                     qPrintable(QStringLiteral("%1 points, %2").arg(points).arg(height)));
        }
}

void MonthViewTest::theDayUnderThePointerIsMarked() {
    const QDate day(2026, 3, 18);
    const QDate other(2026, 3, 19);
    const QImage plain = pictureOf(day);
    const QImage plainOther = pictureOf(other);
    QTest::mouseMove(days()->viewport(), cellOf(*days(), day));
    QTRY_VERIFY(pictureOf(day) != plain);
    // The day's whole face and not its number alone.
    const QPoint besideTheNumber(6, plain.height() / 2);
    QVERIFY(pictureOf(day).pixel(besideTheNumber) != plain.pixel(besideTheNumber));
    QCOMPARE(pictureOf(other), plainOther);
    QTest::mouseMove(days()->viewport(), cellOf(*days(), other));
    QTRY_VERIFY(pictureOf(other) != plainOther);
    QCOMPARE(pictureOf(day), plain);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(days()->viewport(), &leave);
    QCOMPARE(pictureOf(other), plainOther);
    QVERIFY(m_calendar->Value() == QDate(2026, 3, 14));
}

void MonthViewTest::todayIsMarkedAlsoWhereItIsSelected() {
    const QDate today(2026, 3, 18);
    const QImage plain = pictureOf(today);
    m_calendar->setToday(today);
    const QImage marked = pictureOf(today);
    QVERIFY(marked != plain);
    m_calendar->setValue(today);
    const QImage both = pictureOf(today);
    QVERIFY(both != marked);
    m_calendar->setToday({});
    QVERIFY(pictureOf(today) != both);
}

void MonthViewTest::aMarkMovesWithTheDay() {
    const QImage plain = pictureOf(QDate(2026, 3, 18));
    const QImage next = pictureOf(QDate(2026, 3, 19));
    m_calendar->setToday(QDate(2026, 3, 18));
    m_calendar->setToday(QDate(2026, 3, 19));
    QCOMPARE(pictureOf(QDate(2026, 3, 18)), plain);
    QVERIFY(pictureOf(QDate(2026, 3, 19)) != next);
}

ORVALIS_TEST_MAIN_WITH(QApplication, MonthViewTest)
#include "month_view_test.moc"
