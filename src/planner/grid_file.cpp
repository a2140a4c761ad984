// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/grid_file.h"

#include "controls/grid_model.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "runtime/numeric_text.h"
#include "runtime/text_file.h"
#include "runtime/unreadable_files.h"

#include <algorithm>
#include <limits>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

bool isBlank(QChar character) {
    return character == u' ' || character == u'\t';
}

bool isLineEnd(QChar character) {
    return character == u'\r' || character == u'\n';
}

/// Reads a text the way the program's files are read: numbers apart by blanks, commas or line ends,
/// and whole lines, ended by CR LF, CR or LF.
class FileReader {
public:
    explicit FileReader(QStringView text)
        : m_rest(text) {}

    /// The next number, to the nearest whole one. What is no number counts 0, as an empty field
    /// does.
    int number() {
        skipBlanks();
        demandMore();
        qsizetype length = 0;
        while (length < m_rest.size() && !isBlank(m_rest[length]) && m_rest[length] != u',' &&
               !isLineEnd(m_rest[length]))
            ++length;
        const double value = roundHalfEven(numericValue(m_rest.first(length)).value_or(0));
        m_rest = m_rest.sliced(length);
        skipBlanks();
        if (m_rest.startsWith(u','))
            m_rest = m_rest.sliced(1);
        else
            skipLineEnd();
        if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
            throw RuntimeError(ErrorNumber::Overflow);
        return static_cast<int>(value);
    }

    QStringView line() {
        demandMore();
        qsizetype length = 0;
        while (length < m_rest.size() && !isLineEnd(m_rest[length]))
            ++length;
        const QStringView whole = m_rest.first(length);
        m_rest = m_rest.sliced(length);
        skipLineEnd();
        return whole;
    }

private:
    void demandMore() const {
        if (m_rest.isEmpty())
            throw RuntimeError(ErrorNumber::InputPastEndOfFile);
    }
    void skipBlanks() {
        while (!m_rest.isEmpty() && isBlank(m_rest.front()))
            m_rest = m_rest.sliced(1);
    }
    void skipLineEnd() {
        if (m_rest.startsWith(u"\r\n"))
            m_rest = m_rest.sliced(2);
        else if (!m_rest.isEmpty() && isLineEnd(m_rest.front()))
            m_rest = m_rest.sliced(1);
    }

    QStringView m_rest;
};

/// Whether anything stands behind the first line.
bool hasCells(QStringView text) {
    const auto end = std::find_if(text.begin(), text.end(), isLineEnd);
    return !QStringView(end, text.end()).trimmed().isEmpty();
}

void load(const QString& path, GridModel& grid, const GridColours* colours) {
    const GridModel::Batch batch(grid);
    grid.setRows(1);
    grid.setCols(1);
    grid.Clear();
    const bool whole = endSilently([&] {
        const QString text = decodeText(readWhole(path, LargestGridFile));
        fillGrid(grid, text, colours);
        // No list of ours has one row alone and anything in it.
        if (grid.Rows() == 1 && hasCells(text))
            throw RuntimeError(ErrorNumber::InvalidFileFormat);
    });
    // What the grid now lacks is in the file alone.
    if (whole)
        noteReadable(path);
    else
        noteUnreadable(path);
}

/// A number as it is printed to a file: a blank in the place of the sign, and one behind.
QString printed(int number) {
    return u' ' + QString::number(number) + u' ';
}

} // namespace

void GridArray::redim(int rows, int cols) {
    rowBound = rows;
    colBound = cols;
    cells.assign((static_cast<std::size_t>(rows) + 1) * (static_cast<std::size_t>(cols) + 1), {});
}

void GridToArray(GridArray& array, const GridModel& grid) {
    array.redim(grid.Rows(), grid.Cols());
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col)
            array.at(row, col) = grid.TextMatrix(row, col);
}

void CopyGridArray(const GridArray& source, GridArray& target) {
    target = source;
}

QString gridFileText(const GridModel& grid) {
    GridArray cells;
    GridToArray(cells, grid);
    GridArray printedCells;
    CopyGridArray(cells, printedCells);
    QString text = printed(grid.Rows()) + printed(grid.Cols()) + "\r\n"_L1;
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col)
            text += printedCells.at(row, col) + "\r\n"_L1;
    return text;
}

void SaveGridFile(const QString& path, const GridModel& grid) {
    endSilently([&] { saveWhole(path, encodeText(gridFileText(grid))); });
}

void fillGrid(GridModel& grid, QStringView text, const GridColours* colours) {
    FileReader file(text);
    grid.setRows(file.number());
    if (grid.Rows() == 1)
        return;
    grid.setCols(file.number());
    for (int row = 0; row < grid.Rows(); ++row) {
        if (colours) {
            // The colours of a row land on the row before it, whose last cell is still current: an
            // even row paints the header ahead of it. Row 0 paints itself and is repainted by
            // row 1.
            const bool behindHeader = row % 2 == 0;
            grid.setCellBackColor(behindHeader ? colours->headerBack : colours->bodyBack);
            grid.setCellForeColor(behindHeader ? colours->headerFore : colours->bodyFore);
        }
        grid.setRow(row);
        for (int col = 0; col < grid.Cols(); ++col) {
            grid.setCol(col);
            grid.setText(file.line().toString());
        }
    }
}

void LoadGridPlain(const QString& path, GridModel& grid) {
    load(path, grid, nullptr);
}

void LoadRemindGrid(const QString& path, GridModel& grid) {
    load(path, grid, &RemindColours);
}

void LoadPriorityGrid(const QString& path, GridModel& grid) {
    load(path, grid, &PriorityColours);
}

bool IsOddRow(int row, QChar decimalSign) {
    return numberText(row / 2.0, decimalSign).contains(u'.');
}

} // namespace orvalis
