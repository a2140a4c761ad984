// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/numeric_text.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;

class NumericTextTest : public QObject {
    Q_OBJECT
private slots:
    void numbersAreKnownByTheirTexts_data();
    void numbersAreKnownByTheirTexts();
    void otherTextsAreNoNumbers_data();
    void otherTextsAreNoNumbers();
    void theTextOfANumberHasAPointInEveryLocale();
    void theTextOfANumberIsAsShortAsItCanBe_data();
    void theTextOfANumberIsAsShortAsItCanBe();
    void singlePrecisionTellsSevenDigits();
    void tiesGoToTheEvenNumber();
};

void NumericTextTest::numbersAreKnownByTheirTexts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("7") << u"7"_s << 7.0;
    QTest::newRow(" 7 ") << u" 7 "_s << 7.0;
    QTest::newRow("07") << u"07"_s << 7.0;
    QTest::newRow("7.0") << u"7.0"_s << 7.0;
    QTest::newRow("7.") << u"7."_s << 7.0;
    QTest::newRow(".5") << u".5"_s << 0.5;
    QTest::newRow("1e1") << u"1e1"_s << 10.0;
    QTest::newRow("1E-1") << u"1E-1"_s << 0.1;
    QTest::newRow("-1") << u"-1"_s << -1.0;
    QTest::newRow("+7") << u"+7"_s << 7.0;
    QTest::newRow("tab") << u"\t7"_s << 7.0;
}

void NumericTextTest::numbersAreKnownByTheirTexts() {
    QFETCH(QString, text);
    QFETCH(double, value);
    QVERIFY(isNumericText(text));
    QCOMPARE(numericValue(text), std::optional(value));
    QLocale::setDefault(QLocale(u"de_DE"_s));
    QCOMPARE(numericValue(text), std::optional(value));
    QLocale::setDefault(QLocale(u"en_US"_s));
}

void NumericTextTest::otherTextsAreNoNumbers_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", " ", "x", "7x", "7 8", "0x7", "inf", "nan", "-", ".", "e", "1e",
                             "1e999", "1,5", "7-", "--7", "True"})
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("digits of another script") << u"٧"_s;
    QTest::newRow("very long") << QString(100000, u'9');
}

void NumericTextTest::otherTextsAreNoNumbers() {
    QFETCH(QString, text);
    QVERIFY(!isNumericText(text));
    QVERIFY(!numericValue(text).has_value());
}

void NumericTextTest::theTextOfANumberHasAPointInEveryLocale() {
    QLocale::setDefault(QLocale(u"de_DE"_s));
    QCOMPARE(numberText(81.5), u"81.5"_s);
    QCOMPARE(numberText(81.5, u','), u"81,5"_s);
    QLocale::setDefault(QLocale(u"en_US"_s));
}

void NumericTextTest::theTextOfANumberIsAsShortAsItCanBe_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("nought") << 0.0 << u"0"_s;
    QTest::newRow("whole") << 32767.0 << u"32767"_s;
    QTest::newRow("negative") << -7.25 << u"-7.25"_s;
    QTest::newRow("fifteen digits") << 0.1 + 0.2 << u"0.3"_s;
    QTest::newRow("large") << 123456789012345.0 << u"123456789012345"_s;
}

void NumericTextTest::theTextOfANumberIsAsShortAsItCanBe() {
    QFETCH(double, number);
    QFETCH(QString, text);
    QCOMPARE(numberText(number), text);
}

void NumericTextTest::singlePrecisionTellsSevenDigits() {
    QCOMPARE(numberText(0.1F), u"0.1"_s);
    QCOMPARE(numberText(32.5F), u"32.5"_s);
    QCOMPARE(numberText(100.0F / 3), u"33.33333"_s);
}

void NumericTextTest::tiesGoToTheEvenNumber() {
    QCOMPARE(roundHalfEven(81.5), 82.0);
    QCOMPARE(roundHalfEven(22.5), 22.0);
    QCOMPARE(roundHalfEven(0.5), 0.0);
    QCOMPARE(roundHalfEven(-0.5), 0.0);
    QCOMPARE(roundHalfEven(6.25), 6.0);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, NumericTextTest)
#include "numeric_text_test.moc"
