// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/grid_model.h"

#include "runtime/failure.h"
#include "support/test_main.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSignalSpy>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

QStringList texts(const GridModel& grid) {
    QStringList all;
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col)
            all << grid.TextMatrix(row, col);
    return all;
}

template <class Action>
int failureOf(Action&& action) {
    const auto failure = firstFailure(std::forward<Action>(action));
    return failure ? static_cast<int>(failure->number()) : 0;
}

} // namespace

class GridModelTest : public QObject {
    Q_OBJECT
private slots:
    void aNewGridHasOneEmptyCellThatIsCurrent();
    void anItemIsAppendedWithItsTabs();
    void anItemOfAWiderGridLandsInTheFirstColumn();
    void removingARowMovesTheRowsBehindItUp();
    void removingPastTheEndTakesTheLastRow();
    void theOnlyRowCannotBeRemoved();
    void aNegativeRowCannotBeRemoved();
    void aCurrentRowPastTheEndBecomesTheLastRow();
    void takingTheSameRowTwiceEmptiesAListOfOneItem();
    void growingKeepsTheCellsAndAddsEmptyOnes();
    void shrinkingKeepsTheCellsThatStayAndTheCurrentOneInside();
    void columnsCanBeAddedAndTakenAway();
    void sizesThatCannotBeAreRefused_data();
    void sizesThatCannotBeAreRefused();
    void theLargestGridTakesNoFurtherItem();
    void aCurrentCellOutsideIsRefused();
    void aTextOutsideIsRefused();
    void textAndColoursBelongToTheCurrentCell();
    void coloursStayWithTheirRowWhenAnotherIsRemoved();
    void clearEmptiesTextsAndColoursAndKeepsTheSize();
    void viewsHearOfEveryChange();
    void aBatchIsToldAsOneReset();
    void movingTheCurrentCellIsTold();
    void theModelKeepsTheRulesOfItsKind();
};

void GridModelTest::aNewGridHasOneEmptyCellThatIsCurrent() {
    const GridModel grid;
    QCOMPARE(grid.Rows(), 1);
    QCOMPARE(grid.Cols(), 1);
    QCOMPARE(grid.Row(), 0);
    QCOMPARE(grid.Col(), 0);
    QCOMPARE(grid.Text(), QString());
    QCOMPARE(grid.CellBackColor(), 0xFFFFFFu);
    QCOMPARE(grid.CellForeColor(), 0u);
}

void GridModelTest::anItemIsAppendedWithItsTabs() {
    GridModel grid;
    grid.AddItem(u"one\ttwo"_s);
    grid.AddItem(u"three"_s);
    QCOMPARE(texts(grid), (QStringList{QString(), u"one\ttwo"_s, u"three"_s}));
    QCOMPARE(grid.Row(), 0);
}

void GridModelTest::anItemOfAWiderGridLandsInTheFirstColumn() {
    GridModel grid;
    grid.setCols(2);
    grid.AddItem(u"a\tb"_s);
    QCOMPARE(grid.TextMatrix(1, 0), u"a\tb"_s);
    QCOMPARE(grid.TextMatrix(1, 1), QString());
}

void GridModelTest::removingARowMovesTheRowsBehindItUp() {
    GridModel grid;
    for (const QString& text : {u"a"_s, u"b"_s, u"c"_s})
        grid.AddItem(text);
    grid.RemoveItem(2);
    QCOMPARE(texts(grid), (QStringList{QString(), u"a"_s, u"c"_s}));
    grid.RemoveItem(0);
    QCOMPARE(texts(grid), (QStringList{u"a"_s, u"c"_s}));
}

void GridModelTest::removingPastTheEndTakesTheLastRow() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.AddItem(u"b"_s);
    grid.RemoveItem(40);
    QCOMPARE(texts(grid), (QStringList{QString(), u"a"_s}));
}

void GridModelTest::theOnlyRowCannotBeRemoved() {
    GridModel grid;
    QCOMPARE(failureOf([&] { grid.RemoveItem(0); }), 30015);
    QCOMPARE(failureOf([&] { grid.RemoveItem(7); }), 30015);
    QCOMPARE(grid.Rows(), 1);
}

void GridModelTest::aNegativeRowCannotBeRemoved() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    QCOMPARE(failureOf([&] { grid.RemoveItem(-1); }), 30009);
    QCOMPARE(grid.Rows(), 2);
}

void GridModelTest::aCurrentRowPastTheEndBecomesTheLastRow() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.AddItem(u"b"_s);
    grid.setRow(2);
    grid.RemoveItem(0);
    QCOMPARE(grid.Row(), 1);
    grid.RemoveItem(0);
    QCOMPARE(grid.Row(), 0);
    QCOMPARE(grid.Text(), u"b"_s);
}

void GridModelTest::takingTheSameRowTwiceEmptiesAListOfOneItem() {
    GridModel grid;
    grid.AddItem(u"header"_s);
    grid.AddItem(u"body"_s);
    grid.setRow(2);
    const int row = grid.Row();
    grid.RemoveItem(row);
    grid.RemoveItem(row);
    QCOMPARE(texts(grid), QStringList{QString()});
    QCOMPARE(grid.Row(), 0);
}

void GridModelTest::growingKeepsTheCellsAndAddsEmptyOnes() {
    GridModel grid;
    grid.setText(u"first"_s);
    grid.setRows(3);
    QCOMPARE(texts(grid), (QStringList{u"first"_s, QString(), QString()}));
    QCOMPARE(grid.backColor(2, 0), GridModel::White);
}

void GridModelTest::shrinkingKeepsTheCellsThatStayAndTheCurrentOneInside() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.AddItem(u"b"_s);
    grid.setRow(2);
    grid.setRows(2);
    QCOMPARE(texts(grid), (QStringList{QString(), u"a"_s}));
    QCOMPARE(grid.Row(), 1);
}

void GridModelTest::columnsCanBeAddedAndTakenAway() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.setCols(3);
    grid.setCol(2);
    grid.setTextMatrix(1, 1, u"b"_s);
    QCOMPARE(texts(grid),
             (QStringList{QString(), QString(), QString(), u"a"_s, u"b"_s, QString()}));
    grid.setCols(1);
    QCOMPARE(texts(grid), (QStringList{QString(), u"a"_s}));
    QCOMPARE(grid.Col(), 0);
}

void GridModelTest::sizesThatCannotBeAreRefused_data() {
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    QTest::newRow("no row") << 0 << 1;
    QTest::newRow("negative rows") << -5 << 1;
    QTest::newRow("no column") << 1 << 0;
    QTest::newRow("negative columns") << 1 << -5;
    QTest::newRow("a row too many") << 350'001 << 1;
    QTest::newRow("a column too many") << 1 << 350'001;
    QTest::newRow("cells too many") << 1000 << 351;
    QTest::newRow("more than an int can multiply") << 2 << 2'000'000'000;
}

void GridModelTest::sizesThatCannotBeAreRefused() {
    QFETCH(int, rows);
    QFETCH(int, cols);
    GridModel grid;
    QCOMPARE(failureOf([&] {
                 grid.setRows(rows);
                 grid.setCols(cols);
             }),
             30006);
    QVERIFY(qint64(grid.Rows()) * grid.Cols() <= 350'000);
    QVERIFY(grid.Rows() >= 1 && grid.Cols() >= 1);
}

void GridModelTest::theLargestGridTakesNoFurtherItem() {
    GridModel grid;
    grid.setRows(350'000);
    QCOMPARE(grid.Rows(), 350'000);
    QCOMPARE(failureOf([&] { grid.AddItem(u"x"_s); }), 30006);
    QCOMPARE(grid.Rows(), 350'000);
}

void GridModelTest::aCurrentCellOutsideIsRefused() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    for (const int row : {-1, 2})
        QCOMPARE(failureOf([&] { grid.setRow(row); }), 30009);
    for (const int col : {-1, 1})
        QCOMPARE(failureOf([&] { grid.setCol(col); }), 30009);
    QCOMPARE(grid.Row(), 0);
    QCOMPARE(grid.Col(), 0);
}

void GridModelTest::aTextOutsideIsRefused() {
    GridModel grid;
    QCOMPARE(failureOf([&] { grid.setTextMatrix(1, 0, u"x"_s); }), 30009);
    QCOMPARE(failureOf([&] { grid.setTextMatrix(0, -1, u"x"_s); }), 30009);
    QCOMPARE(failureOf([&] { (void)grid.TextMatrix(-1, 0); }), 30009);
    QCOMPARE(failureOf([&] { (void)grid.backColor(0, 1); }), 30009);
    QCOMPARE(failureOf([&] { (void)grid.foreColor(0, 1); }), 30009);
}

void GridModelTest::textAndColoursBelongToTheCurrentCell() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.setRow(1);
    grid.setText(u"b"_s);
    grid.setCellBackColor(255);
    grid.setCellForeColor(0xFFFFFF);
    QCOMPARE(texts(grid), (QStringList{QString(), u"b"_s}));
    QCOMPARE(grid.CellBackColor(), 255u);
    QCOMPARE(grid.CellForeColor(), 0xFFFFFFu);
    QCOMPARE(grid.backColor(0, 0), 0xFFFFFFu);
    QCOMPARE(grid.foreColor(0, 0), 0u);
}

void GridModelTest::coloursStayWithTheirRowWhenAnotherIsRemoved() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.AddItem(u"b"_s);
    grid.setRow(2);
    grid.setCellBackColor(255);
    grid.RemoveItem(1);
    QCOMPARE(grid.backColor(0, 0), GridModel::White);
    QCOMPARE(grid.backColor(1, 0), 255u);
}

void GridModelTest::clearEmptiesTextsAndColoursAndKeepsTheSize() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    grid.setRow(1);
    grid.setCellBackColor(255);
    grid.setCellForeColor(7);
    grid.Clear();
    QCOMPARE(texts(grid), (QStringList{QString(), QString()}));
    QCOMPARE(grid.backColor(1, 0), GridModel::White);
    QCOMPARE(grid.foreColor(1, 0), GridModel::Black);
    QCOMPARE(grid.Row(), 1);
}

void GridModelTest::viewsHearOfEveryChange() {
    GridModel grid;
    QSignalSpy added(&grid, &QAbstractItemModel::rowsInserted);
    QSignalSpy taken(&grid, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&grid, &QAbstractItemModel::dataChanged);
    grid.AddItem(u"a"_s);
    QCOMPARE(added.count(), 1);
    QCOMPARE(changed.count(), 1);
    grid.setCellBackColor(1);
    grid.setCellForeColor(1);
    grid.setText(u"b"_s);
    QCOMPARE(changed.count(), 4);
    grid.Clear();
    QCOMPARE(changed.count(), 5);
    grid.RemoveItem(0);
    QCOMPARE(taken.count(), 1);
}

void GridModelTest::aBatchIsToldAsOneReset() {
    GridModel grid;
    QSignalSpy reset(&grid, &QAbstractItemModel::modelReset);
    QSignalSpy added(&grid, &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(&grid, &QAbstractItemModel::dataChanged);
    {
        const GridModel::Batch batch(grid);
        const GridModel::Batch within(grid);
        grid.AddItem(u"a"_s);
        grid.RemoveItem(0);
        grid.setCols(2);
        QCOMPARE(reset.count(), 0);
    }
    QCOMPARE(reset.count(), 1);
    QCOMPARE(added.count(), 0);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!grid.isChanging());
}

void GridModelTest::movingTheCurrentCellIsTold() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    int moves = 0;
    grid.whenCurrentMoves([&] { ++moves; });
    grid.setRow(1);
    QCOMPARE(moves, 1);
    grid.RemoveItem(1);
    QCOMPARE(moves, 2);
}

void GridModelTest::theModelKeepsTheRulesOfItsKind() {
    GridModel grid;
    const QAbstractItemModelTester tester(&grid,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    grid.AddItem(u"a"_s);
    grid.setRows(5);
    grid.setRow(4);
    grid.setCellBackColor(255);
    grid.setCols(2);
    grid.RemoveItem(9);
    grid.Clear();
    grid.setRows(1);
    QCOMPARE(grid.rowCount(), 1);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, GridModelTest)
#include "grid_model_test.moc"
