// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/toolbar_state.h"

#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;

namespace {

constexpr FormatButtons AllDown{
    .alignment = 2, .bold = true, .italic = true, .underline = true, .bullets = true};
constexpr SelectionFormat Plain{
    .bold = false, .italic = false, .underline = false, .alignment = 0, .bullet = false};

} // namespace

class ToolbarStateTest : public QObject {
    Q_OBJECT
private slots:
    void theButtonsTakeWhatTheSelectionHas();
    void eachValueHasItsOwnButton();
    void aSelectionThatIsPartBoldLeavesAllButtons();
    void partItalicOrUnderlinedLeavesAllButtonsToo();
    void aMixedAlignmentPressesNothingAndTheBulletGoesOn();
    void aJustifiedParagraphPressesNothing();
    void aMixedBulletLeavesItsButton();
    void anIndentMovesByMillimetresAndBack();
    void anIndentHasNoLimit();
};

void ToolbarStateTest::theButtonsTakeWhatTheSelectionHas() {
    QCOMPARE(adjusted(AllDown, Plain), FormatButtons());
    const SelectionFormat all{
        .bold = true, .italic = true, .underline = true, .alignment = 2, .bullet = true};
    QCOMPARE(adjusted(FormatButtons(), all), AllDown);
}

void ToolbarStateTest::eachValueHasItsOwnButton() {
    SelectionFormat selection = Plain;
    selection.bold = true;
    QVERIFY(adjusted({}, selection).bold);
    selection = Plain;
    selection.italic = true;
    QVERIFY(adjusted({}, selection).italic);
    selection = Plain;
    selection.underline = true;
    QVERIFY(adjusted({}, selection).underline);
    selection = Plain;
    selection.bullet = true;
    QVERIFY(adjusted({}, selection).bullets);
    for (const int alignment : {0, 1, 2}) {
        selection.alignment = alignment;
        QCOMPARE(adjusted({}, selection).alignment, alignment);
    }
}

void ToolbarStateTest::aSelectionThatIsPartBoldLeavesAllButtons() {
    SelectionFormat selection = Plain;
    selection.bold.reset();
    QCOMPARE(adjusted(AllDown, selection), AllDown);
}

void ToolbarStateTest::partItalicOrUnderlinedLeavesAllButtonsToo() {
    SelectionFormat selection = Plain;
    selection.italic.reset();
    QCOMPARE(adjusted(AllDown, selection), AllDown);
    selection = Plain;
    selection.underline.reset();
    QCOMPARE(adjusted(AllDown, selection), AllDown);
}

void ToolbarStateTest::aMixedAlignmentPressesNothingAndTheBulletGoesOn() {
    SelectionFormat selection = Plain;
    selection.alignment.reset();
    const FormatButtons buttons = adjusted(AllDown, selection);
    QCOMPARE(buttons.alignment, 2);
    QVERIFY(!buttons.bold);
    QVERIFY(!buttons.bullets);
}

void ToolbarStateTest::aJustifiedParagraphPressesNothing() {
    SelectionFormat selection = Plain;
    selection.alignment = 3;
    QCOMPARE(adjusted(AllDown, selection).alignment, 2);
}

void ToolbarStateTest::aMixedBulletLeavesItsButton() {
    SelectionFormat selection = Plain;
    selection.bullet.reset();
    QVERIFY(adjusted(AllDown, selection).bullets);
    QVERIFY(!adjusted(FormatButtons(), selection).bullets);
}

void ToolbarStateTest::anIndentMovesByMillimetresAndBack() {
    QCOMPARE(shiftedIndent(0, 8), 454);
    QCOMPARE(shiftedIndent(454, 8), 908);
    QCOMPARE(shiftedIndent(shiftedIndent(0, 8), -8), 0);
    QCOMPARE(shiftedIndent(720, 8), 1174);
}

void ToolbarStateTest::anIndentHasNoLimit() {
    QCOMPARE(shiftedIndent(0, -8), -454);
    QCOMPARE(shiftedIndent(1000000, 8), 1000454);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ToolbarStateTest)
#include "toolbar_state_test.moc"
