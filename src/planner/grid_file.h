// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/colour.h"

#include <QString>

#include <vector>

namespace orvalis {

class GridModel;

/// The texts of a grid in a table whose upper bounds are the grid's numbers of rows and columns, so
/// that its last row and column stay empty.
struct GridArray {
    int rowBound = 0;
    int colBound = 0;
    std::vector<QString> cells{1};

    void redim(int rows, int cols);
    QString& at(int row, int col) { return cells[place(row, col)]; }
    const QString& at(int row, int col) const { return cells[place(row, col)]; }

private:
    std::size_t place(int row, int col) const {
        return static_cast<std::size_t>(row) * (static_cast<std::size_t>(colBound) + 1) +
               static_cast<std::size_t>(col);
    }
};

/// Sizes the array by the grid and copies every cell's text.
void GridToArray(GridArray& array, const GridModel& grid);

/// Makes the target a copy of the source.
void CopyGridArray(const GridArray& source, GridArray& target);

/// The largest grid file that is read, in bytes.
constexpr qint64 LargestGridFile = qint64{64} * 1024 * 1024;

/// What a grid file holds, before its encoding: the numbers of rows and columns on a line, each
/// with a blank ahead and behind, then a line for each cell, row by row.
QString gridFileText(const GridModel& grid);

/// Writes the grid to the file. A failure is silent and leaves the old file; one that no loader
/// could read to its end is kept aside first, under its name with ".unreadable" added.
void SaveGridFile(const QString& path, const GridModel& grid);

/// Which colours a loader gives to header rows and body rows (0xBBGGRR).
struct GridColours {
    ColourValue headerBack;
    ColourValue headerFore;
    ColourValue bodyBack;
    ColourValue bodyFore;
};

constexpr GridColours RemindColours{0xA0C8B0, 0, 0xFFFFFF, 0};
constexpr GridColours PriorityColours{255, 0xFFFFFF, 0xFFFFFF, 0};

/// Fills the grid with the text of a grid file. \a colours may be null for none.
/// \throws RuntimeError at the first thing that cannot be (a size that no grid has, a missing
/// line); the grid stays as far as it got.
void fillGrid(GridModel& grid, QStringView text, const GridColours* colours);

/// Read a file into a grid, which starts over with one empty row. A failure is silent and leaves
/// the grid as far as it got. The second colours header rows for the Remind list, the third for the
/// Priority list; the last row of the file keeps the grid's own colours.
void LoadGridPlain(const QString& path, GridModel& grid);
void LoadRemindGrid(const QString& path, GridModel& grid);
void LoadPriorityGrid(const QString& path, GridModel& grid);

/// Whether the text of the index divided by 2 holds a ".": with any other decimal sign no row is
/// odd, and what asks for an odd row refuses always.
bool IsOddRow(int row, QChar decimalSign);

} // namespace orvalis
