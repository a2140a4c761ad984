// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_search.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class AddressSearchTest : public QObject {
    Q_OBJECT
private slots:
    void thereAreThirteenMethodsEachWithItsField();
    void otherTextsAreNoMethods();
    void theWholeFieldMustBeEqual();
    void capitalsCountOnlyWhereTheyAreToMatch();
    void capitalsAreOneCharacterForOne();
};

void AddressSearchTest::thereAreThirteenMethodsEachWithItsField() {
    const QStringList methods{u"First"_s, u"Second"_s,   u"Area"_s,  u"Address"_s, u"Town"_s,
                              u"Pin"_s,   u"District"_s, u"State"_s, u"Country"_s, u"Tel"_s,
                              u"Fax"_s,   u"Email"_s,    u"Web"_s};
    QCOMPARE(searchMethods(), methods);
    for (qsizetype i = 0; i < methods.size(); ++i)
        QVERIFY(fieldOfMethod(methods[i]) == AddressFields.at(static_cast<std::size_t>(i)));
}

void AddressSearchTest::otherTextsAreNoMethods() {
    for (const QString& text :
         {QString(), u"first"_s, u"Notes"_s, u"Picture"_s, u"Select method"_s})
        QVERIFY(!fieldOfMethod(text));
}

void AddressSearchTest::theWholeFieldMustBeEqual() {
    for (const bool matchCase : {true, false}) {
        const SearchedValue value(u"Ann"_s, matchCase);
        QVERIFY(value.equals(u"Ann"_s));
        for (const QString& field : {u"An"_s, u"Anna"_s, u" Ann"_s, QString(), u"A*"_s, u"A?n"_s})
            QVERIFY(!value.equals(field));
        QVERIFY(!SearchedValue(u"A*"_s, matchCase).equals(u"Ann"_s));
    }
}

void AddressSearchTest::capitalsCountOnlyWhereTheyAreToMatch() {
    QVERIFY(SearchedValue(u"ann"_s, false).equals(u"Ann"_s));
    QVERIFY(SearchedValue(u"ANN"_s, false).equals(u"ann"_s));
    QVERIFY(SearchedValue(u"žarko"_s, false).equals(u"ŽARKO"_s));
    QVERIFY(!SearchedValue(u"ann"_s, true).equals(u"Ann"_s));
    QVERIFY(!SearchedValue(u"Zoe"_s, false).equals(u"Zoë"_s));
}

void AddressSearchTest::capitalsAreOneCharacterForOne() {
    QCOMPARE(inCapitals(u"straße ŉ ﬁ é 1"_s), u"STRAßE ŉ ﬁ É 1"_s);
    QVERIFY(!SearchedValue(u"STRASSE"_s, false).equals(u"straße"_s));
    QVERIFY(SearchedValue(u"STRAßE"_s, false).equals(u"straße"_s));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressSearchTest)
#include "address_search_test.moc"
