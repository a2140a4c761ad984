// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_places.h"

#include "address/address_book.h"
#include "runtime/app.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class AddressPlacesTest : public QObject {
    Q_OBJECT
private slots:
    void stepsWrapAround();
    void oneRecordStaysItself();
    void aFullBookIsNoLimit();
    void whatStandsBehindAGapMovesUp_data();
    void whatStandsBehindAGapMovesUp();
};

void AddressPlacesTest::stepsWrapAround() {
    QCOMPARE(previousIndex(0, 3), 2);
    QCOMPARE(previousIndex(2, 3), 1);
    QCOMPARE(nextIndex(0, 3), 1);
    QCOMPARE(nextIndex(2, 3), 0);
    QCOMPARE(indexWithin(2, 3), 2);
    QCOMPARE(indexWithin(3, 3), 0);
    // One past the last leads back to the last.
    QCOMPARE(previousIndex(3, 3), 2);
}

void AddressPlacesTest::oneRecordStaysItself() {
    QCOMPARE(previousIndex(0, 1), 0);
    QCOMPARE(nextIndex(0, 1), 0);
}

void AddressPlacesTest::aFullBookIsNoLimit() {
    QCOMPARE(previousIndex(32766, 32767), 32765);
    QCOMPARE(nextIndex(32766, 32767), 0);
}

void AddressPlacesTest::whatStandsBehindAGapMovesUp_data() {
    QTest::addColumn<int>("gap");
    QTest::addColumn<QString>("left");
    const auto row = [](const char* name, int gap, const QString& left) {
        QTest::newRow(name) << gap << left;
    };
    row("first", 0, u"bccd"_s);
    row("middle", 1, u"accd"_s);
    row("last", 2, u"abcd"_s);
    row("spare", 3, u"abcd"_s);
    row("none", -1, u"abcd"_s);
}

void AddressPlacesTest::whatStandsBehindAGapMovesUp() {
    QFETCH(int, gap);
    QFETCH(QString, left);
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    AddressBook book(app);
    for (const QChar name : u"abcd"_s)
        book.AddressRecords.emplace_back().Notes = name;
    book.AddressCount = 3;
    closeGap(book, gap);
    QString names;
    for (const AddressRecord& record : book.AddressRecords)
        names += record.Notes;
    QCOMPARE(names, left);
    QCOMPARE(book.AddressCount, 3);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, AddressPlacesTest)
#include "address_places_test.moc"
