// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/grid_file.h"

#include "controls/grid_model.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "support/counted_memory.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

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

/// Back and fore colour of every cell, as "back/fore".
QStringList colours(const GridModel& grid) {
    QStringList all;
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col)
            all << QString::asprintf("%06x/%06x", grid.backColor(row, col),
                                     grid.foreColor(row, col));
    return all;
}

const QString Plain = u"ffffff/000000"_s;
const QString Sage = u"a0c8b0/000000"_s;
const QString Red = u"0000ff/ffffff"_s;

} // namespace

class GridFileTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void theFileHoldsSizesAndThenALineForEachCell();
    void cellsOfARowStandOneBelowTheOther();
    void anEmptyGridIsWrittenAsOneEmptyRow();
    void savingReplacesTheWholeFile();
    void aFileThatCannotBeWrittenIsPassedOverSilently();
    void textsOutsideTheAnsiPageSurvive_data();
    void textsOutsideTheAnsiPageSurvive();
    void westernLettersAreOneByteEach();
    void savingAndLoadingGivesTheGridBack();
    void withoutAFileTheGridHasOneEmptyRowAndTheFirstItemLandsOnRowsOneAndTwo();
    void aFileWhoseFirstNumberIsOneHoldsNoCells();
    void aLoadForgetsWhatTheGridHeld();
    void headerRowsOfTheRemindListAreSage();
    void headerRowsOfThePriorityListAreRedWithWhiteText();
    void aPlainLoadGivesNoColours();
    void anEvenRowCountLeavesTheLastHeaderUncoloured();
    void onlyTheLastColumnIsColoured();
    void theLastCellIsCurrentAfterALoad();
    void aLineBreakInACellShiftsTheCellsBehindIt();
    void theHeaderIsReadLikeAnyListOfNumbers_data();
    void theHeaderIsReadLikeAnyListOfNumbers();
    void aHostileFileEndsSilently_data();
    void aHostileFileEndsSilently();
    void aListThatCannotBeReadIsKeptAsideOnce_data();
    void aListThatCannotBeReadIsKeptAsideOnce();
    void aListThatWasReadIsNotKeptAside_data();
    void aListThatWasReadIsNotKeptAside();
    void fiftyMegabytesOfOneLineAreReadOnce();
    void aFileBeyondTheLimitIsNotRead();
    void viewsHearOfALoadOnce();
    void anArrayHasTheGridsSizesAsUpperBounds();
    void aCopiedArrayHoldsTheSameCells();
    void rowsAreOddByTheSignInTheirHalf_data();
    void rowsAreOddByTheSignInTheirHalf();

private:
    QString path() const { return m_folder->filePath(u"tmp2.brf"_s); }
    void write(const QByteArray& bytes) const {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }
    QByteArray written() const { return readWhole(path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void GridFileTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void GridFileTest::theFileHoldsSizesAndThenALineForEachCell() {
    GridModel grid;
    for (const QString& text : {u"Saturday, June 01, 2002/07:30:00"_s, u"Call \"Ann\", now"_s,
                                u"Sunday, June 02, 2002/08:00:00"_s, QString()})
        grid.AddItem(text);
    SaveGridFile(path(), grid);
    QCOMPARE(written(), QByteArray(" 5  1 \r\n"
                                   "\r\n"
                                   "Saturday, June 01, 2002/07:30:00\r\n"
                                   "Call \"Ann\", now\r\n"
                                   "Sunday, June 02, 2002/08:00:00\r\n"
                                   "\r\n"));
}

void GridFileTest::cellsOfARowStandOneBelowTheOther() {
    GridModel grid;
    grid.setRows(2);
    grid.setCols(2);
    grid.setTextMatrix(0, 0, u"a"_s);
    grid.setTextMatrix(0, 1, u"b"_s);
    grid.setTextMatrix(1, 0, u"c"_s);
    grid.setTextMatrix(1, 1, u"d"_s);
    SaveGridFile(path(), grid);
    QCOMPARE(written(), QByteArray(" 2  2 \r\na\r\nb\r\nc\r\nd\r\n"));
}

void GridFileTest::anEmptyGridIsWrittenAsOneEmptyRow() {
    SaveGridFile(path(), GridModel());
    QCOMPARE(written(), QByteArray(" 1  1 \r\n\r\n"));
}

void GridFileTest::savingReplacesTheWholeFile() {
    write(QByteArray(10'000, 'x'));
    SaveGridFile(path(), GridModel());
    QCOMPARE(written(), QByteArray(" 1  1 \r\n\r\n"));
}

void GridFileTest::aFileThatCannotBeWrittenIsPassedOverSilently() {
    const GridModel grid;
    SaveGridFile(m_folder->filePath(u"no/such/folder.brf"_s), grid);
    SaveGridFile(m_folder->path(), grid);
    QVERIFY(!QFile::exists(m_folder->filePath(u"no"_s)));
}

void GridFileTest::textsOutsideTheAnsiPageSurvive_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("Cyrillic") << u"Позвонить"_s;
    QTest::newRow("emoji") << u"🎂 birthday"_s;
    QTest::newRow("western letters that look like UTF-8") << u"Ã©"_s;
    QTest::newRow("tabs") << u"a\tb"_s;
    QTest::newRow("blanks at both ends") << u"  a  "_s;
}

void GridFileTest::textsOutsideTheAnsiPageSurvive() {
    QFETCH(QString, text);
    GridModel grid;
    grid.AddItem(u"header"_s);
    grid.AddItem(text);
    SaveGridFile(path(), grid);
    GridModel loaded;
    LoadGridPlain(path(), loaded);
    QCOMPARE(texts(loaded), texts(grid));
}

void GridFileTest::westernLettersAreOneByteEach() {
    GridModel grid;
    grid.setText(u"é"_s);
    SaveGridFile(path(), grid);
    QCOMPARE(written(), QByteArray(" 1  1 \r\n\xE9\r\n"));
}

void GridFileTest::savingAndLoadingGivesTheGridBack() {
    GridModel grid;
    grid.setRows(7);
    grid.setCols(3);
    for (int row = 0; row < 7; ++row)
        for (int col = 0; col < 3; ++col)
            grid.setTextMatrix(row, col, u"%1,%2"_s.arg(row).arg(col));
    SaveGridFile(path(), grid);
    GridModel loaded;
    LoadGridPlain(path(), loaded);
    QCOMPARE(loaded.Rows(), 7);
    QCOMPARE(loaded.Cols(), 3);
    QCOMPARE(texts(loaded), texts(grid));
}

void GridFileTest::withoutAFileTheGridHasOneEmptyRowAndTheFirstItemLandsOnRowsOneAndTwo() {
    GridModel grid;
    grid.setText(u"old"_s);
    grid.setCellBackColor(7);
    grid.AddItem(u"old too"_s);
    grid.setCols(3);
    LoadPriorityGrid(path(), grid);
    QCOMPARE(grid.Cols(), 1);
    QCOMPARE(texts(grid), QStringList{QString()});
    QCOMPARE(colours(grid), QStringList{Plain});
    grid.AddItem(u"header"_s);
    grid.AddItem(u"body"_s);
    QCOMPARE(grid.TextMatrix(1, 0), u"header"_s);
    QCOMPARE(grid.TextMatrix(2, 0), u"body"_s);
}

void GridFileTest::aFileWhoseFirstNumberIsOneHoldsNoCells() {
    write(" 1  1 \r\nthere\r\nis\r\nmore\r\n");
    GridModel grid;
    LoadRemindGrid(path(), grid);
    QCOMPARE(texts(grid), QStringList{QString()});
    QCOMPARE(colours(grid), QStringList{Plain});
}

void GridFileTest::aLoadForgetsWhatTheGridHeld() {
    GridModel grid;
    grid.setCols(4);
    grid.AddItem(u"old"_s);
    grid.setRow(1);
    grid.setCellBackColor(7);
    write(" 2  1 \r\n\r\nnew\r\n");
    LoadGridPlain(path(), grid);
    QCOMPARE(texts(grid), (QStringList{QString(), u"new"_s}));
    QCOMPARE(colours(grid), (QStringList{Plain, Plain}));
}

void GridFileTest::headerRowsOfTheRemindListAreSage() {
    write(" 5  1 \r\n\r\nh1\r\nb1\r\nh2\r\nb2\r\n");
    GridModel grid;
    LoadRemindGrid(path(), grid);
    QCOMPARE(colours(grid), (QStringList{Plain, Sage, Plain, Sage, Plain}));
}

void GridFileTest::headerRowsOfThePriorityListAreRedWithWhiteText() {
    write(" 5  1 \r\n\r\nh1\r\nb1\r\nh2\r\nb2\r\n");
    GridModel grid;
    LoadPriorityGrid(path(), grid);
    QCOMPARE(colours(grid), (QStringList{Plain, Red, Plain, Red, Plain}));
}

void GridFileTest::aPlainLoadGivesNoColours() {
    write(" 3  1 \r\n\r\nh1\r\nb1\r\n");
    GridModel grid;
    LoadGridPlain(path(), grid);
    QCOMPARE(texts(grid), (QStringList{QString(), u"h1"_s, u"b1"_s}));
    QCOMPARE(colours(grid), (QStringList{Plain, Plain, Plain}));
}

void GridFileTest::anEvenRowCountLeavesTheLastHeaderUncoloured() {
    write(" 4  1 \r\n\r\nh1\r\nb1\r\nh2\r\n");
    GridModel grid;
    LoadRemindGrid(path(), grid);
    QCOMPARE(colours(grid), (QStringList{Plain, Sage, Plain, Plain}));
}

void GridFileTest::onlyTheLastColumnIsColoured() {
    write(" 3  2 \r\n\r\n\r\nh\r\nh\r\nb\r\nb\r\n");
    GridModel grid;
    LoadRemindGrid(path(), grid);
    QCOMPARE(colours(grid), (QStringList{Sage, Plain, Plain, Sage, Plain, Plain}));
}

void GridFileTest::theLastCellIsCurrentAfterALoad() {
    write(" 3  2 \r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    GridModel grid;
    LoadGridPlain(path(), grid);
    QCOMPARE(grid.Row(), 2);
    QCOMPARE(grid.Col(), 1);
}

void GridFileTest::aLineBreakInACellShiftsTheCellsBehindIt() {
    GridModel grid;
    for (const QString& text : {u"h1"_s, u"two\r\nlines"_s, u"h2"_s, u"b2"_s})
        grid.AddItem(text);
    SaveGridFile(path(), grid);
    GridModel loaded;
    LoadGridPlain(path(), loaded);
    QCOMPARE(texts(loaded), (QStringList{QString(), u"h1"_s, u"two"_s, u"lines"_s, u"h2"_s}));
}

void GridFileTest::theHeaderIsReadLikeAnyListOfNumbers_data() {
    QTest::addColumn<QByteArray>("header");
    QTest::newRow("as written") << QByteArray(" 2  1 \r\n");
    QTest::newRow("no blanks round it") << QByteArray("2 1\r\n");
    QTest::newRow("many blanks") << QByteArray("   2 \t  1   \r\n");
    QTest::newRow("comma") << QByteArray("2,1\r\n");
    QTest::newRow("comma and blanks") << QByteArray(" 2 , 1 \r\n");
    QTest::newRow("on two lines") << QByteArray(" 2 \r\n 1 \r\n");
    QTest::newRow("line ended by LF") << QByteArray(" 2  1 \n");
    QTest::newRow("line ended by CR") << QByteArray(" 2  1 \r");
    QTest::newRow("decimals") << QByteArray("2.0 1e0\r\n");
}

void GridFileTest::theHeaderIsReadLikeAnyListOfNumbers() {
    QFETCH(QByteArray, header);
    write(header + "a\r\nb\r\n");
    GridModel grid;
    LoadGridPlain(path(), grid);
    QCOMPARE(texts(grid), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(grid.Cols(), 1);
}

void GridFileTest::aHostileFileEndsSilently_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("left");
    const QStringList oneEmptyRow{QString()};
    const QStringList threeEmptyRows{QString(), QString(), QString()};
    QTest::newRow("empty") << QByteArray() << oneEmptyRow;
    QTest::newRow("a blank") << QByteArray(" ") << oneEmptyRow;
    QTest::newRow("no number") << QByteArray("rows cols\r\na\r\n") << oneEmptyRow;
    QTest::newRow("an empty first line") << QByteArray("\r\n\r\n") << oneEmptyRow;
    QTest::newRow("rows negative") << QByteArray("-3  1 \r\na\r\nb\r\n") << oneEmptyRow;
    QTest::newRow("rows zero") << QByteArray(" 0  1 \r\na\r\n") << oneEmptyRow;
    QTest::newRow("rows a billion") << QByteArray(" 1000000000  1 \r\na\r\n") << oneEmptyRow;
    QTest::newRow("rows beyond an int")
        << QByteArray(" 99999999999999999999  1 \r\n") << oneEmptyRow;
    QTest::newRow("rows beyond a double") << QByteArray(" 1e999  1 \r\n") << oneEmptyRow;
    QTest::newRow("columns missing") << QByteArray(" 3 ") << threeEmptyRows;
    QTest::newRow("columns zero") << QByteArray(" 3  0 \r\na\r\n") << threeEmptyRows;
    QTest::newRow("columns negative") << QByteArray(" 3  -1 \r\na\r\n") << threeEmptyRows;
    QTest::newRow("columns no number") << QByteArray(" 3 x\r\na\r\n") << threeEmptyRows;
    QTest::newRow("more cells than a grid can hold")
        << QByteArray(" 3  200000 \r\na\r\n") << threeEmptyRows;
    QTest::newRow("fewer lines than promised")
        << QByteArray(" 3  1 \r\na\r\nb\r\n") << QStringList{u"a"_s, u"b"_s, QString()};
    QTest::newRow("no lines at all") << QByteArray(" 3  1 \r\n") << threeEmptyRows;
    QTest::newRow("the last line not ended")
        << QByteArray(" 3  1 \r\na\r\nb\r\nc") << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("more lines than promised")
        << QByteArray(" 2  1 \r\na\r\nb\r\nc\r\n") << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("lines ended by a lone CR")
        << QByteArray(" 3  1 \ra\rb\rc\r") << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("lines ended by a lone LF")
        << QByteArray(" 3  1 \na\nb\nc\n") << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("NUL in a cell")
        << QByteArray(" 2  1 \r\na\0b\r\nc\r\n", 15) << QStringList{u"a\0b"_s, u"c"_s};
    QTest::newRow("NUL in the header") << QByteArray(" 2\0  1 \r\na\r\n", 12) << oneEmptyRow;
    QTest::newRow("only NUL") << QByteArray(1000, '\0') << oneEmptyRow;
    QTest::newRow("a mark and nothing else") << QByteArray("\xEF\xBB\xBF") << oneEmptyRow;
}

void GridFileTest::aHostileFileEndsSilently() {
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, left);
    write(bytes);
    for (const auto loadGrid : {LoadGridPlain, LoadRemindGrid, LoadPriorityGrid}) {
        GridModel grid;
        grid.AddItem(u"old"_s);
        loadGrid(path(), grid);
        QCOMPARE(texts(grid), left);
        QVERIFY(!grid.isChanging());
    }
}

void GridFileTest::aListThatCannotBeReadIsKeptAsideOnce_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QString text = u" 3  1 \r\n\r\nFriday\r\nCall Ann\r\n"_s;
    QTest::newRow("UTF-16 with its mark")
        << QByteArray("\xFF\xFE") +
               QByteArray(reinterpret_cast<const char*>(text.utf16()), 2 * text.size());
    QTest::newRow("UTF-16 without it")
        << QByteArray(reinterpret_cast<const char*>(text.utf16()), 2 * text.size());
    QTest::newRow("no row count") << QByteArray("x 1 \r\n\r\nFriday\r\nCall Ann\r\n");
    QTest::newRow("no column count") << QByteArray(" 3  x \r\n\r\nFriday\r\nCall Ann\r\n");
    QTest::newRow("one row and more behind it")
        << QByteArray(" 1  1 \r\n\r\nFriday\r\nCall Ann\r\n");
    QTest::newRow("cut in the header") << QByteArray(" 3 ");
    QTest::newRow("cut between cells") << QByteArray(" 3  1 \r\n\r\nFriday\r\n");
    QTest::newRow("too many rows") << QByteArray(" 2000000000  1 \r\n\r\nFriday\r\nCall Ann\r\n");
    QTest::newRow("lines without a header") << QByteArray("Friday\r\nCall Ann\r\n");
}

void GridFileTest::aListThatCannotBeReadIsKeptAsideOnce() {
    QFETCH(QByteArray, bytes);
    write(bytes);
    GridModel grid;
    LoadRemindGrid(path(), grid);
    GridModel another;
    another.AddItem(u"new"_s);
    SaveGridFile(path(), another);
    SaveGridFile(path(), another);
    QCOMPARE(written(), QByteArray(" 2  1 \r\n\r\nnew\r\n"));
    QCOMPARE(readWhole(path() + u".unreadable"_s), bytes);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
}

void GridFileTest::aListThatWasReadIsNotKeptAside_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty list") << QByteArray(" 1  1 \r\n\r\n");
    QTest::newRow("empty list without its cell") << QByteArray(" 1  1 \r\n");
    QTest::newRow("items") << QByteArray(" 3  1 \r\n\r\nFriday\r\nCall Ann\r\n");
    QTest::newRow("a cell with a line break in it")
        << QByteArray(" 3  1 \r\n\r\nFriday\r\nCall Ann\r\nand Bob\r\n");
    QTest::newRow("no line end at the end") << QByteArray(" 3  1 \r\n\r\nFriday\r\nCall Ann");
}

void GridFileTest::aListThatWasReadIsNotKeptAside() {
    QFETCH(QByteArray, bytes);
    write(bytes);
    GridModel grid;
    LoadRemindGrid(path(), grid);
    SaveGridFile(path(), grid);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"tmp2.brf"_s});
}

void GridFileTest::fiftyMegabytesOfOneLineAreReadOnce() {
    constexpr qint64 Size = 50 * 1024 * 1024;
    write(" 3  1 \r\n\r\n" + QByteArray(Size, 'x'));
    GridModel grid;
    const test::TakenMemory taken = test::memoryTakenBy([&] { LoadRemindGrid(path(), grid); });
    // Room for the largest file, this one's text and the cell; another copy would be too much.
    QVERIFY2(taken.asked < 8 * Size, "the line was copied over and over");
    QCOMPARE(grid.Rows(), 3);
    QCOMPARE(grid.TextMatrix(1, 0).size(), Size);
    QCOMPARE(grid.TextMatrix(2, 0), QString());
}

void GridFileTest::aFileBeyondTheLimitIsNotRead() {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(" 2  1 \r\na\r\nb\r\n");
    QVERIFY(file.resize(LargestGridFile + 1));
    file.close();
    GridModel grid;
    grid.AddItem(u"old"_s);
    LoadGridPlain(path(), grid);
    QCOMPARE(texts(grid), QStringList{QString()});
}

void GridFileTest::viewsHearOfALoadOnce() {
    write(" 5  1 \r\n\r\nh1\r\nb1\r\nh2\r\nb2\r\n");
    GridModel grid;
    QSignalSpy reset(&grid, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&grid, &QAbstractItemModel::dataChanged);
    LoadRemindGrid(path(), grid);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(changed.count(), 0);
}

void GridFileTest::anArrayHasTheGridsSizesAsUpperBounds() {
    GridModel grid;
    grid.setRows(2);
    grid.setCols(3);
    grid.setTextMatrix(1, 2, u"last"_s);
    GridArray array;
    GridToArray(array, grid);
    QCOMPARE(array.rowBound, 2);
    QCOMPARE(array.colBound, 3);
    QCOMPARE(array.at(1, 2), u"last"_s);
    QCOMPARE(array.at(2, 3), QString());
    QCOMPARE(array.cells.size(), std::size_t(12));
}

void GridFileTest::aCopiedArrayHoldsTheSameCells() {
    GridModel grid;
    grid.AddItem(u"a"_s);
    GridArray source;
    GridToArray(source, grid);
    GridArray target;
    CopyGridArray(source, target);
    source.at(1, 0) = u"changed"_s;
    QCOMPARE(target.rowBound, 2);
    QCOMPARE(target.colBound, 1);
    QCOMPARE(target.at(1, 0), u"a"_s);
}

void GridFileTest::rowsAreOddByTheSignInTheirHalf_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QChar>("sign");
    QTest::addColumn<bool>("odd");
    QTest::newRow("0") << 0 << QChar(u'.') << false;
    QTest::newRow("1") << 1 << QChar(u'.') << true;
    QTest::newRow("2") << 2 << QChar(u'.') << false;
    QTest::newRow("20001") << 20'001 << QChar(u'.') << true;
    QTest::newRow("1 where the sign is a comma") << 1 << QChar(u',') << false;
    QTest::newRow("2 where the sign is a comma") << 2 << QChar(u',') << false;
}

void GridFileTest::rowsAreOddByTheSignInTheirHalf() {
    QFETCH(int, row);
    QFETCH(QChar, sign);
    QFETCH(bool, odd);
    QCOMPARE(IsOddRow(row, sign), odd);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, GridFileTest)
#include "grid_file_test.moc"
