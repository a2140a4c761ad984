// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/format.h"

#include "runtime/failure.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;

namespace {

const QDateTime Moment(QDate(2002, 6, 1), QTime(7, 5, 9));

} // namespace

class FormatTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void everyPatternHasItsText_data();
    void everyPatternHasItsText();
    void hoursRunFromOneToTwelveBesideDayHalves_data();
    void hoursRunFromOneToTwelveBesideDayHalves();
    void namesFollowTheLocale_data();
    void namesFollowTheLocale();
    void digitsAndSeparatorsStayPlainInEveryLocale();
    void theLongTimeTellsSecondsInEveryLocale();
    void theShortTimeTellsNoSecondsInEveryLocale();
    void theDefaultTextIsTheShortDateABlankAndTheTimeWithSeconds_data();
    void theDefaultTextIsTheShortDateABlankAndTheTimeWithSeconds();
    void anInvalidMomentIsATypeMismatch();
    void aTimeTextIsReadBack_data();
    void aTimeTextIsReadBack();
    void noTimeTextIsATypeMismatch_data();
    void noTimeTextIsATypeMismatch();
};

void FormatTest::init() {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void FormatTest::everyPatternHasItsText_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* pattern, const char* text) {
        QTest::newRow(pattern) << QString::fromLatin1(pattern) << QString::fromLatin1(text);
    };
    row("dddd, mmmm dd, yyyy", "Saturday, June 01, 2002");
    row("dddd, MMMM dd, yyyy", "Saturday, June 01, 2002");
    row("DDDD, MMMM DD, YYYY", "Saturday, June 01, 2002");
    row("hh:mm:ss", "07:05:09");
    row("mm:dd:yyyy", "06:01:2002");
    row("hh : mm : ss", "07 : 05 : 09");
    row("h : m : s", "7 : 5 : 9");
    row("hh : mm : ss AMPM", "07 : 05 : 09 AM");
    row("hh:mm:ss AMPM", "07:05:09 AM");
    row("hh:mm AMPM", "07:05 AM");
    row("hh : mm AMPM", "07 : 05 AM");
    row("hh : mm", "07 : 05");
    row("h : m", "7 : 5");
    row("h / m / s", "7 / 5 / 9");
    row("hh/mm/ss AMPM", "07/05/09 AM");
    row("hh / mm / ss AMPM", "07 / 05 / 09 AM");
    row("hh / mm AMPM", "07 / 05 AM");
    row("hh / mm", "07 / 05");
    row("hh / mm / ss", "07 / 05 / 09");
    row("hh/ mm/ ss", "07/ 05/ 09");
    row("d m yy", "1 6 02");
    row("ddd mmm", "Sat Jun");
    row("hh:nn mm", "07:05 06");
    row("hh:mm mm", "07:05 06");
    row("hh mmmm", "07 June");
    row("ss mm", "09 06");
    row("\"hh\" h", "hh 7");
    row("\\h h \"open", "h 7 open");
    row("y", "y");
    row("", "");
}

void FormatTest::everyPatternHasItsText() {
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QCOMPARE(Format(Moment, pattern), text);
}

void FormatTest::hoursRunFromOneToTwelveBesideDayHalves_data() {
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("text");
    QTest::newRow("midnight") << 0 << u"12 AM, 12"_s;
    QTest::newRow("one") << 1 << u"01 AM, 1"_s;
    QTest::newRow("before noon") << 11 << u"11 AM, 11"_s;
    QTest::newRow("noon") << 12 << u"12 PM, 12"_s;
    QTest::newRow("after noon") << 13 << u"01 PM, 1"_s;
    QTest::newRow("before midnight") << 23 << u"11 PM, 11"_s;
}

void FormatTest::hoursRunFromOneToTwelveBesideDayHalves() {
    QFETCH(int, hour);
    QFETCH(QString, text);
    QCOMPARE(Format(QTime(hour, 0), u"hh AMPM, h"), text);
    QCOMPARE(Format(QTime(hour, 0), u"h"), QString::number(hour));
    QCOMPARE(Format(QTime(hour, 0), u"h \"AMPM\""), QString::number(hour) + u" AMPM"_s);
}

void FormatTest::namesFollowTheLocale_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("en_US") << QLocale(u"en_US"_s) << u"Saturday, June 01, 2002"_s;
    QTest::newRow("de_DE") << QLocale(u"de_DE"_s) << u"Samstag, Juni 01, 2002"_s;
    QTest::newRow("sr_RS") << QLocale(u"sr_RS"_s) << u"субота, јун 01, 2002"_s;
    QTest::newRow("sr_Latn_RS") << QLocale(u"sr_Latn_RS"_s) << u"subota, jun 01, 2002"_s;
    QTest::newRow("ja_JP") << QLocale(u"ja_JP"_s) << u"土曜日, 6月 01, 2002"_s;
}

void FormatTest::namesFollowTheLocale() {
    QFETCH(QLocale, locale);
    QFETCH(QString, text);
    QLocale::setDefault(locale);
    QCOMPARE(Format(Moment, u"dddd, MMMM dd, yyyy"), text);
    QCOMPARE(Format(QTime(15, 0), u"AMPM"), locale.pmText());
    QCOMPARE(Format(QTime(3, 0), u"AMPM"), locale.amText());
}

void FormatTest::digitsAndSeparatorsStayPlainInEveryLocale() {
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    QVERIFY(locales.size() > 100);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        QCOMPARE(Format(Moment.time(), u"hh:mm:ss"), u"07:05:09"_s);
        QCOMPARE(Format(Moment.date(), u"mm:dd:yyyy"), u"06:01:2002"_s);
    }
}

void FormatTest::theLongTimeTellsSecondsInEveryLocale() {
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        const QString nine = Format(QTime(7, 5, 9), u"Long Time");
        QVERIFY2(nine != Format(QTime(7, 5, 10), u"Long Time"), qPrintable(locale.name()));
        QVERIFY2(nine != Format(QTime(19, 5, 9), u"Long Time"), qPrintable(locale.name()));
        QVERIFY2(!nine.contains(u"UTC"_s) && !nine.contains(u'(') && nine == nine.trimmed(),
                 qPrintable(locale.name() + u": "_s + nine));
    }
}

void FormatTest::theShortTimeTellsNoSecondsInEveryLocale() {
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        const QString five = Format(QTime(7, 5, 9), u"Short Time");
        QVERIFY2(five == Format(QTime(7, 5, 59), u"short time"), qPrintable(locale.name()));
        QVERIFY2(five != Format(QTime(7, 6, 9), u"Short Time"), qPrintable(locale.name()));
    }
}

void FormatTest::theDefaultTextIsTheShortDateABlankAndTheTimeWithSeconds_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("en_US") << QLocale(u"en_US"_s) << u"6/1/02 7:05:09 AM"_s;
    QTest::newRow("de_DE") << QLocale(u"de_DE"_s) << u"01.06.02 07:05:09"_s;
    QTest::newRow("sr_RS") << QLocale(u"sr_RS"_s) << u"1.6.02. 07:05:09"_s;
    QTest::newRow("ja_JP") << QLocale(u"ja_JP"_s) << u"2002/06/01 7時05分09秒"_s;
}

void FormatTest::theDefaultTextIsTheShortDateABlankAndTheTimeWithSeconds() {
    QFETCH(QLocale, locale);
    QFETCH(QString, text);
    QLocale::setDefault(locale);
    QCOMPARE(generalDate(Moment), text);
    QVERIFY(text.startsWith(shortDate(Moment.date()) + u' '));
    QCOMPARE(Format(Moment, u"Short Date"), shortDate(Moment.date()));
}

void FormatTest::anInvalidMomentIsATypeMismatch() {
    const auto number = [](auto&& block) { return firstFailure(block)->number(); };
    QCOMPARE(number([] { Format(QDateTime(), u"hh"); }), ErrorNumber::TypeMismatch);
    QCOMPARE(number([] { Format(QDate(2002, 2, 29), u"dd"); }), ErrorNumber::TypeMismatch);
    QCOMPARE(number([] { Format(QTime(24, 0), u"hh"); }), ErrorNumber::TypeMismatch);
}

void FormatTest::aTimeTextIsReadBack_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QTime>("time");
    QTest::newRow("alarm") << u"07:30:00"_s << QTime(7, 30);
    QTest::newRow("midnight") << u"00:00:00"_s << QTime(0, 0);
    QTest::newRow("last second") << u"23:59:59"_s << QTime(23, 59, 59);
    QTest::newRow("blanks") << u" 7 : 5 : 9 "_s << QTime(7, 5, 9);
    QTest::newRow("no seconds") << u"7:30"_s << QTime(7, 30);
}

void FormatTest::aTimeTextIsReadBack() {
    QFETCH(QString, text);
    QFETCH(QTime, time);
    QCOMPARE(TimeValue(text), time);
}

void FormatTest::noTimeTextIsATypeMismatch_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "x", "7", "24:00:00", "00:60:00", "00:00:60", ":00:00", "x:00:00",
                             "-1:00:00", "7.0:00:00", "1e1:00:00", "007:00:00", "1:2:3:4"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void FormatTest::noTimeTextIsATypeMismatch() {
    QFETCH(QString, text);
    const auto failure = firstFailure([&] { TimeValue(text); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::TypeMismatch);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FormatTest)
#include "format_test.moc"
