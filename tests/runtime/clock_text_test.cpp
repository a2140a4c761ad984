// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/clock_text.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;

class ClockTextTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void everyFormatHasItsText_data();
    void everyFormatHasItsText();
    void anIndexOutsideTheTableIsEmpty_data();
    void anIndexOutsideTheTableIsEmpty();
    void theSecondsOfFormatsSixAndTwelveNeverMove();
    void theTextsAreTheSameInEveryLocaleButForTheDayHalf_data();
    void theTextsAreTheSameInEveryLocaleButForTheDayHalf();
};

void ClockTextTest::init() {
    QLocale::setDefault(QLocale(u"en_US"_s));
}

void ClockTextTest::everyFormatHasItsText_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("morning");
    QTest::addColumn<QString>("evening");
    const auto row = [](int index, const char* morning, const char* evening) {
        QTest::addRow("%d", index)
            << index << QString::fromLatin1(morning) << QString::fromLatin1(evening);
    };
    row(0, "07 : 05 : 09", "19 : 30 : 45");
    row(1, "7 : 5 : 9", "19 : 30 : 45");
    row(2, "07 : 05 : 09 AM", "07 : 30 : 45 PM");
    row(3, "07 : 05 AM", "07 : 30 PM");
    row(4, "07 : 05 AM", "07 : 30 PM");
    row(5, "07 : 05", "19 : 30");
    row(6, "07 : 05 : 00", "19 : 30 : 00");
    row(7, "7 : 5", "19 : 30");
    row(8, "7 / 5 / 9", "19 / 30 / 45");
    row(9, "07 / 05 / 09 AM", "07 / 30 / 45 PM");
    row(10, "07 / 05 AM", "07 / 30 PM");
    row(11, "07 / 05", "19 / 30");
    row(12, "07/ 05/ 00", "19/ 30/ 00");
}

void ClockTextTest::everyFormatHasItsText() {
    QFETCH(int, index);
    QFETCH(QString, morning);
    QFETCH(QString, evening);
    QCOMPARE(ClockText(index, QTime(7, 5, 9, 999)), morning);
    QCOMPARE(ClockText(index, QTime(19, 30, 45)), evening);
}

void ClockTextTest::anIndexOutsideTheTableIsEmpty_data() {
    QTest::addColumn<int>("index");
    for (const int index : {-32768, -1, 13, 14, 32767})
        QTest::addRow("%d", index) << index;
}

void ClockTextTest::anIndexOutsideTheTableIsEmpty() {
    QFETCH(int, index);
    QCOMPARE(ClockText(index, QTime(7, 5, 9)), QString());
}

void ClockTextTest::theSecondsOfFormatsSixAndTwelveNeverMove() {
    for (int second = 0; second < 60; ++second) {
        QCOMPARE(ClockText(6, QTime(7, 5, second)), u"07 : 05 : 00"_s);
        QCOMPARE(ClockText(12, QTime(7, 5, second)), u"07/ 05/ 00"_s);
    }
}

void ClockTextTest::theTextsAreTheSameInEveryLocaleButForTheDayHalf_data() {
    QTest::addColumn<QLocale>("locale");
    for (const char* name : {"de_DE", "sr_RS", "en_US", "ja_JP", "ar_EG", "fi_FI"})
        QTest::newRow(name) << QLocale(QString::fromLatin1(name));
}

void ClockTextTest::theTextsAreTheSameInEveryLocaleButForTheDayHalf() {
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    QCOMPARE(ClockText(0, QTime(19, 30, 45)), u"19 : 30 : 45"_s);
    QCOMPARE(ClockText(6, QTime(19, 30, 45)), u"19 : 30 : 00"_s);
    QCOMPARE(ClockText(2, QTime(19, 30, 45)), u"07 : 30 : 45 "_s + locale.pmText());
    QCOMPARE(ClockText(10, QTime(0, 30, 45)), u"12 / 30 "_s + locale.amText());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ClockTextTest)
#include "clock_text_test.moc"
