// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_rules.h"

#include "controls/grid_model.h"
#include "planner/todo_entry.h"
#include "runtime/failure.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace orvalis;
using namespace Qt::StringLiterals;

class ReminderRulesTest : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void datesAreToldInFull();
    void theLabelOfTheCombosHasNone();
    void whatMayStandInTheTimeLabel_data();
    void whatMayStandInTheTimeLabel();
    void aReminderHeaderJoinsDateAndTime();
    void aHeaderOfOneLanguageIsAnotherTextInTheNext();
    void aPriorityItemHasARedHeaderThatStaysCurrent();
    void aReminderItemGetsNoColours();
    void enterGoesToTheNextRow();
    void enterInTheLastRowWrapsToRowOne();
    void enterGoesToTheLastColumnFirst();
    void enterInAnEmptyListHasNowhereToGo();
    void backspaceTakesTheLastCharacter_data();
    void backspaceTakesTheLastCharacter();
    void otherKeysAppendExceptInRowZero();
    void theSearchStartsOnePastTheLastMatch();
    void aMatchBeyondThe16BitPositionsOverflows();
    void searchOptionsAddUp();
    void theTextsOfAnEntry();

private:
    static GridModel* listOf(int items) {
        auto* grid = new GridModel;
        for (int i = 1; i <= items; ++i)
            grid->AddItem(u"item %1"_s.arg(i));
        return grid;
    }
};

void ReminderRulesTest::datesAreToldInFull() {
    QCOMPARE(dateText(QDate(2002, 6, 1)), u"Saturday, June 01, 2002"_s);
}

void ReminderRulesTest::theLabelOfTheCombosHasNone() {
    QCOMPARE(timeLabel(u"07"_s, u"30"_s), u"07:30:00"_s);
    QCOMPARE(timeLabel(QString(), u"30"_s), u":30:00"_s);
}

void ReminderRulesTest::whatMayStandInTheTimeLabel_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("0") << u"0"_s << true;
    QTest::newRow("23") << u"23"_s << true;
    QTest::newRow("24") << u"24"_s << false;
    QTest::newRow("letters") << u"x"_s << false;
    QTest::newRow("a blank") << u" "_s << false;
}

void ReminderRulesTest::whatMayStandInTheTimeLabel() {
    QFETCH(QString, text);
    QFETCH(bool, fits);
    QCOMPARE(fitsTimeLabel(text, 23), fits);
}

void ReminderRulesTest::aReminderHeaderJoinsDateAndTime() {
    QCOMPARE(remindHeader(QDate(2002, 6, 1), u"07:30:00"_s), u"Saturday, June 01, 2002/07:30:00"_s);
}

void ReminderRulesTest::aHeaderOfOneLanguageIsAnotherTextInTheNext() {
    const QString english = remindHeader(QDate(2002, 6, 1), u"07:30:00"_s);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(remindHeader(QDate(2002, 6, 1), u"07:30:00"_s), u"Samstag, Juni 01, 2002/07:30:00"_s);
    QVERIFY(remindHeader(QDate(2002, 6, 1), u"07:30:00"_s) != english);
}

void ReminderRulesTest::aPriorityItemHasARedHeaderThatStaysCurrent() {
    GridModel grid;
    addPriorityItem(grid, QDate(2002, 6, 1), u"message"_s);
    QCOMPARE(grid.Rows(), 3);
    QCOMPARE(grid.TextMatrix(1, 0), u"Saturday, June 01, 2002"_s);
    QCOMPARE(grid.TextMatrix(2, 0), u"message"_s);
    QCOMPARE(grid.backColor(1, 0), 255u);
    QCOMPARE(grid.foreColor(1, 0), 0xFFFFFFu);
    QCOMPARE(grid.backColor(2, 0), GridModel::White);
    QCOMPARE(grid.Row(), 1);
}

void ReminderRulesTest::aReminderItemGetsNoColours() {
    GridModel grid;
    addRemindItem(grid, u"header"_s, u"message"_s);
    QCOMPARE(grid.TextMatrix(1, 0), u"header"_s);
    QCOMPARE(grid.TextMatrix(2, 0), u"message"_s);
    QCOMPARE(grid.backColor(1, 0), GridModel::White);
    QCOMPARE(grid.Row(), 0);
}

void ReminderRulesTest::enterGoesToTheNextRow() {
    const std::unique_ptr<GridModel> grid(listOf(3));
    grid->setRow(0);
    typeIntoGrid(*grid, u"\r"_s);
    QCOMPARE(grid->Row(), 1);
    typeIntoGrid(*grid, u"\r"_s);
    QCOMPARE(grid->Row(), 2);
    QCOMPARE(grid->Text(), u"item 2"_s);
}

void ReminderRulesTest::enterInTheLastRowWrapsToRowOne() {
    const std::unique_ptr<GridModel> grid(listOf(3));
    grid->setRow(3);
    typeIntoGrid(*grid, u"\r"_s);
    QCOMPARE(grid->Row(), 1);
}

void ReminderRulesTest::enterGoesToTheLastColumnFirst() {
    const std::unique_ptr<GridModel> grid(listOf(3));
    grid->setCols(3);
    grid->setRow(2);
    typeIntoGrid(*grid, u"\r"_s);
    QCOMPARE(grid->Row(), 2);
    QCOMPARE(grid->Col(), 2);
    typeIntoGrid(*grid, u"\r"_s);
    QCOMPARE(grid->Row(), 3);
    QCOMPARE(grid->Col(), 0);
}

void ReminderRulesTest::enterInAnEmptyListHasNowhereToGo() {
    GridModel grid;
    const auto failure = firstFailure([&] { typeIntoGrid(grid, u"\r"_s); });
    QVERIFY(failure && failure->number() == ErrorNumber::InvalidRowValue);
    QCOMPARE(grid.Row(), 0);
}

void ReminderRulesTest::backspaceTakesTheLastCharacter_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("text") << u"abc"_s << u"ab"_s;
    QTest::newRow("one character") << u"a"_s << QString();
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("blanks alone stay") << u"   "_s << u"   "_s;
    QTest::newRow("a blank behind text") << u"a "_s << u"a"_s;
    QTest::newRow("a character of two units") << u"a😀"_s << u"a"_s;
}

void ReminderRulesTest::backspaceTakesTheLastCharacter() {
    QFETCH(QString, before);
    QFETCH(QString, after);
    GridModel grid;
    grid.AddItem(before);
    grid.setRow(1);
    typeIntoGrid(grid, u"\b"_s);
    QCOMPARE(grid.Text(), after);
}

void ReminderRulesTest::otherKeysAppendExceptInRowZero() {
    const std::unique_ptr<GridModel> grid(listOf(1));
    typeIntoGrid(*grid, u"x"_s);
    QCOMPARE(grid->Text(), QString());
    grid->setRow(1);
    typeIntoGrid(*grid, u"x"_s);
    typeIntoGrid(*grid, u"日本"_s);
    QCOMPARE(grid->Text(), u"item 1x日本"_s);
}

void ReminderRulesTest::theSearchStartsOnePastTheLastMatch() {
    FindSteps steps;
    QCOMPARE(steps.start(), 1);
    steps.store(40);
    QCOMPARE(steps.start(), 41);
    steps.restart();
    QCOMPARE(steps.start(), 1);
    steps.store(-1);
    QCOMPARE(steps.start(), 0);
}

void ReminderRulesTest::aMatchBeyondThe16BitPositionsOverflows() {
    FindSteps steps;
    steps.store(32'767);
    QCOMPARE(steps.position(), 32'767);
    const auto next = firstFailure([&] { (void)steps.start(); });
    QVERIFY(next && next->number() == ErrorNumber::Overflow);
    const auto beyond = firstFailure([&] { steps.store(32'768); });
    QVERIFY(beyond && beyond->number() == ErrorNumber::Overflow);
}

void ReminderRulesTest::searchOptionsAddUp() {
    QCOMPARE(findOptions(false, false), 0);
    QCOMPARE(findOptions(true, false), 2);
    QCOMPARE(findOptions(false, true), 4);
    QCOMPARE(findOptions(true, true), 6);
}

void ReminderRulesTest::theTextsOfAnEntry() {
    const QString line(19, u'_');
    QCOMPARE(entryTitle(u"Title"_s), u"\r\nTitle\r\n"_s + line + u"\r\n"_s);
    QCOMPARE(entryMessageBreak(), u"\r\n"_s);
    QCOMPARE(entryDueLine(QDate(2002, 6, 1)), u"\r\n\r\n    To do: Saturday, June 01, 2002"_s);
    QCOMPARE(entrySavedLine(QDateTime(QDate(2002, 6, 1), QTime(7, 30, 5))),
             u"\r\n    Saved: 6/1/02 7:30:05 AM\r\n"_s + line + u"\r\n"_s);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, ReminderRulesTest)
#include "reminder_rules_test.moc"
