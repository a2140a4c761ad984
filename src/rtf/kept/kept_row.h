// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// What is kept of a row of a table: the words that shape it, and how many cells it has where that
/// is another number than these words tell.

/// The kept text of a row that has other than as many cells as its words tell.
/// \param cells 0 for a paragraph without text in a table, ahead of a row that may never end.
QString unevenRow(int cells, const QString& words);

/// How many cells the row has.
qsizetype cellsOfRow(const QString& kept);

/// Whether the text is that of a paragraph ahead of a row that may never end.
bool isOpenRow(const QString& kept);

/// The words that shape the row.
QStringView wordsOfRow(const QString& kept);

/// Tables in cells of tables in cells, and so on.
inline constexpr int MostNesting = 63;

/// The kept text of a row of a table that stands in a cell.
/// \param group that shapes it.
QString nestedRow(int number, int cells, const QString& group);

/// How many cells it has.
int cellsOfNestedRow(const QString& kept);

/// The group that shapes it.
QStringView groupOfNestedRow(const QString& kept);

/// How deep the table is nested whose cell has this shape: 0 for a cell of no table in a cell.
int nestingOfCell(const QString& shape);

/// What stands for the shape of a cell that ends outside of any row.
inline constexpr QStringView BareCell = u"\\cell";

} // namespace orvalis::rtf
