// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/field_runs.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis::rtf;
using Are = FieldRuns::Are;

/// What becomes of text that a field, a formula or a shape shows by itself.
class FieldRunsTest : public QObject {
    Q_OBJECT
private slots:
    void textAsItWasReadIsShownByItsField();
    void textAsItWasReadMayLookOtherwise();
    void changedTextOfAFieldIsText();
    void changedTextOfAShapeStaysInIt();
    void aLookThatTheFrameCannotHoldMakesItText();
    void anAnchorBehindItStandsBehindTheShape();
    void anAnchorBetweenTwoRunsMakesItText();
    void charactersThatTheFrameCannotHoldMakeItText_data();
    void charactersThatTheFrameCannotHoldMakeItText();
    void allRunsCount();

private:
    const KeptShown m_field{u"{\\*\\fldinst SYMBOL 97}", {}, u"a"};
    const KeptShown m_shape{u"{\\plain{\\shp{\\shptxt word}}}",
                            u"{\\plain{\\shp{\\shptxt\\orvshown }}}", u"word"};
};

void FieldRunsTest::textAsItWasReadIsShownByItsField() {
    FieldRuns runs(m_field);
    runs.run(1, true, false);
    QVERIFY(runs.are(u"a") == Are::Shown);
}

void FieldRunsTest::textAsItWasReadMayLookOtherwise() {
    FieldRuns runs(m_shape);
    runs.run(2, false, true);
    runs.run(2, false, true);
    QVERIFY(runs.are(u"word") == Are::Shown);
}

void FieldRunsTest::changedTextOfAFieldIsText() {
    FieldRuns runs(m_field);
    runs.run(2, true, false);
    QVERIFY(runs.are(u"ab") == Are::Text);
}

void FieldRunsTest::changedTextOfAShapeStaysInIt() {
    FieldRuns runs(m_shape);
    runs.run(2, true, false);
    runs.run(4, true, false);
    QVERIFY(runs.are(u"a\tword") == Are::ShapeText);
}

void FieldRunsTest::aLookThatTheFrameCannotHoldMakesItText() {
    FieldRuns runs(m_shape);
    runs.run(2, true, false);
    runs.run(1, false, false);
    runs.run(3, true, false);
    QVERIFY(runs.are(u"a sign") == Are::Text);
}

void FieldRunsTest::anAnchorBehindItStandsBehindTheShape() {
    FieldRuns runs(m_shape);
    runs.run(2, true, false);
    runs.run(3, true, true);
    QVERIFY(runs.are(u"words") == Are::ShapeText);
}

void FieldRunsTest::anAnchorBetweenTwoRunsMakesItText() {
    FieldRuns runs(m_shape);
    runs.run(2, true, true);
    runs.run(3, true, false);
    QVERIFY(runs.are(u"words") == Are::Text);
}

void FieldRunsTest::charactersThatTheFrameCannotHoldMakeItText_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("a picture") << QStringLiteral("wor\uFFFC");
    QTest::newRow("a line break") << QStringLiteral("wo\nd");
    QTest::newRow("a control character") << QStringLiteral("wo\u0001d");
}

void FieldRunsTest::charactersThatTheFrameCannotHoldMakeItText() {
    QFETCH(QString, text);
    FieldRuns runs(m_shape);
    runs.run(int(text.size()), true, false);
    QVERIFY(runs.are(text) == Are::Text);
}

void FieldRunsTest::allRunsCount() {
    FieldRuns runs(m_shape);
    QCOMPARE(runs.length(), 0);
    runs.run(2, true, false);
    runs.run(3, false, true);
    QCOMPARE(runs.length(), 5);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, FieldRunsTest)
#include "field_runs_test.moc"
