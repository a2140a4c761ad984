// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/grid_model.h"

#include "runtime/failure.h"

#include <algorithm>

namespace orvalis {

namespace {

void demandRoomFor(int rows, int cols) {
    if (rows < 1 || cols < 1 || qint64(rows) * cols > GridModel::MaxCells)
        throw RuntimeError(ErrorNumber::GridOutOfMemory);
}

} // namespace

GridModel::GridModel(QObject* parent)
    : QAbstractTableModel(parent) {}

template <class Change>
void GridModel::changeRows(bool grows, int first, int last, Change&& change) {
    m_changing = true;
    if (told()) {
        if (grows)
            beginInsertRows({}, first, last);
        else
            beginRemoveRows({}, first, last);
    }
    change();
    m_row = std::min(m_row, m_rows - 1);
    if (told()) {
        if (grows)
            endInsertRows();
        else
            endRemoveRows();
        m_changing = false;
    }
    tellMoved();
}

void GridModel::setRows(int rows) {
    demandRoomFor(rows, m_cols);
    if (rows == m_rows)
        return;
    const bool grows = rows > m_rows;
    changeRows(grows, grows ? m_rows : rows, (grows ? rows : m_rows) - 1, [&] {
        m_rows = rows;
        m_cells.resize(at(rows, 0));
    });
}

void GridModel::setCols(int cols) {
    demandRoomFor(m_rows, cols);
    if (cols == m_cols)
        return;
    const Batch batch(*this);
    std::vector<Cell> cells(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(cols));
    for (int row = 0; row < m_rows; ++row)
        for (int col = 0; col < std::min(cols, m_cols); ++col)
            cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) +
                  static_cast<std::size_t>(col)] = std::move(m_cells[at(row, col)]);
    m_cells = std::move(cells);
    m_cols = cols;
    m_col = std::min(m_col, m_cols - 1);
}

void GridModel::setRow(int row) {
    if (row < 0 || row >= m_rows)
        throw RuntimeError(ErrorNumber::InvalidRowValue);
    m_row = row;
    tellMoved();
}

void GridModel::setCol(int col) {
    if (col < 0 || col >= m_cols)
        throw RuntimeError(ErrorNumber::InvalidRowValue);
    m_col = col;
    tellMoved();
}

void GridModel::setText(const QString& text) {
    setTextMatrix(m_row, m_col, text);
}

void GridModel::setCellBackColor(ColourValue colour) {
    m_cells[at(m_row, m_col)].back = colour;
    changed(m_row, m_col);
}

void GridModel::setCellForeColor(ColourValue colour) {
    m_cells[at(m_row, m_col)].fore = colour;
    changed(m_row, m_col);
}

void GridModel::setTextMatrix(int row, int col, const QString& text) {
    m_cells[place(row, col)].text = text;
    changed(row, col);
}

void GridModel::AddItem(const QString& text) {
    setRows(m_rows + 1);
    setTextMatrix(m_rows - 1, 0, text);
}

void GridModel::RemoveItem(int row) {
    if (row < 0)
        throw RuntimeError(ErrorNumber::InvalidRowValue);
    if (m_rows == 1)
        throw RuntimeError(ErrorNumber::CannotRemoveLastRow);
    const int victim = std::min(row, m_rows - 1);
    changeRows(false, victim, victim, [&] {
        const auto first = m_cells.begin() + static_cast<std::ptrdiff_t>(at(victim, 0));
        m_cells.erase(first, first + m_cols);
        --m_rows;
    });
}

void GridModel::Clear() {
    std::fill(m_cells.begin(), m_cells.end(), Cell{});
    if (told())
        emit dataChanged(index(0, 0), index(m_rows - 1, m_cols - 1));
}

GridModel::Batch::Batch(GridModel& grid)
    : m_grid(grid) {
    if (m_grid.m_batches++ > 0)
        return;
    m_grid.m_changing = true;
    m_grid.beginResetModel();
}

GridModel::Batch::~Batch() {
    if (--m_grid.m_batches > 0)
        return;
    m_grid.endResetModel();
    m_grid.m_changing = false;
    m_grid.tellMoved();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_cols;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Cell& cell = m_cells[at(index.row(), index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return cell.text;
    case Qt::BackgroundRole:
        return toQColor(cell.back);
    case Qt::ForegroundRole:
        return toQColor(cell.fore);
    default:
        return {};
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

std::size_t GridModel::place(int row, int col) const {
    if (row < 0 || row >= m_rows || col < 0 || col >= m_cols)
        throw RuntimeError(ErrorNumber::InvalidRowValue);
    return at(row, col);
}

void GridModel::changed(int row, int col) {
    if (!told())
        return;
    const QModelIndex cell = index(row, col);
    emit dataChanged(cell, cell);
}

void GridModel::tellMoved() {
    if (m_currentMoved)
        m_currentMoved();
}

} // namespace orvalis
