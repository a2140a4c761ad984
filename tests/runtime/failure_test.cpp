// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/failure.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;

class FailureTest : public QObject {
    Q_OBJECT
private slots:
    void passingOverRunsTheStatementsBehindAFailure();
    void endingSilentlyStopsAtTheFirstFailure();
    void theFirstFailureIsHandedBackWithItsWords();
    void everyNumberHasItsWords_data();
    void everyNumberHasItsWords();
};

void FailureTest::passingOverRunsTheStatementsBehindAFailure() {
    QStringList ran;
    resumeNext([&] { ran << QStringLiteral("first"); },
               [&] { throw RuntimeError(ErrorNumber::Overflow); },
               [&] { ran << QStringLiteral("third"); });
    QCOMPARE(ran, (QStringList{QStringLiteral("first"), QStringLiteral("third")}));
}

void FailureTest::endingSilentlyStopsAtTheFirstFailure() {
    bool reached = false;
    QVERIFY(!endSilently([&] {
        throw RuntimeError(ErrorNumber::FileNotFound);
        reached = true;
    }));
    QVERIFY(!reached);
    QVERIFY(endSilently([] {}));
}

void FailureTest::theFirstFailureIsHandedBackWithItsWords() {
    const auto failure = firstFailure([] { throw RuntimeError(ErrorNumber::PermissionDenied); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::PermissionDenied);
    QCOMPARE(failure->description(), QStringLiteral("Permission denied"));
    QVERIFY(!firstFailure([] {}).has_value());
}

void FailureTest::everyNumberHasItsWords_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("words");
    QTest::newRow("5") << 5 << QStringLiteral("Invalid procedure call or argument");
    QTest::newRow("6") << 6 << QStringLiteral("Overflow");
    QTest::newRow("9") << 9 << QStringLiteral("Subscript out of range");
    QTest::newRow("13") << 13 << QStringLiteral("Type mismatch");
    QTest::newRow("53") << 53 << QStringLiteral("File not found");
    QTest::newRow("62") << 62 << QStringLiteral("Input past end of file");
    QTest::newRow("70") << 70 << QStringLiteral("Permission denied");
    QTest::newRow("75") << 75 << QStringLiteral("Path/File access error");
    QTest::newRow("76") << 76 << QStringLiteral("Path not found");
    QTest::newRow("91") << 91 << QStringLiteral("Object variable not set");
    QTest::newRow("94") << 94 << QStringLiteral("Invalid use of Null");
    QTest::newRow("321") << 321 << QStringLiteral("Invalid file format");
    QTest::newRow("380") << 380 << QStringLiteral("Invalid property value");
    QTest::newRow("481") << 481 << QStringLiteral("Invalid picture");
    QTest::newRow("482") << 482 << QStringLiteral("Printer error");
    QTest::newRow("30006") << 30006 << QStringLiteral("Unable to allocate memory for the grid");
    QTest::newRow("30009") << 30009 << QStringLiteral("Invalid row value");
    QTest::newRow("30015") << 30015 << QStringLiteral("Cannot remove the last row");
    QTest::newRow("32755") << 32755 << QStringLiteral("Cancel was selected");
}

void FailureTest::everyNumberHasItsWords() {
    QFETCH(int, number);
    QFETCH(QString, words);
    QCOMPARE(RuntimeError(static_cast<ErrorNumber>(number)).description(), words);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FailureTest)
#include "failure_test.moc"
