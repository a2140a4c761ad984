// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/colour.h"

#include <QAbstractTableModel>
#include <QString>

#include <functional>
#include <vector>

namespace orvalis {

/// The cells of a list grid and the rules of changing them; knows no window. It owns the texts and
/// the colours of every cell and the current cell. A new grid has one row and one column, and its
/// cell (0, 0) is current. Colours are 0xBBGGRR.
class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    static constexpr int MaxCells = 350'000;
    static constexpr ColourValue White = 0xFFFFFF;
    static constexpr ColourValue Black = 0x000000;

    explicit GridModel(QObject* parent = nullptr);

    int Rows() const { return m_rows; }
    int Cols() const { return m_cols; }
    /// Cells that stay keep their texts and colours. A current cell outside moves to the last row
    /// or column. Fails with 30006 below 1 and above MaxCells cells.
    void setRows(int rows);
    void setCols(int cols);

    int Row() const { return m_row; }
    int Col() const { return m_col; }
    /// Fail with 30009 outside of the grid.
    void setRow(int row);
    void setCol(int col);

    /// The current cell's text and colours.
    const QString& Text() const { return current().text; }
    void setText(const QString& text);
    ColourValue CellBackColor() const { return current().back; }
    void setCellBackColor(ColourValue colour);
    ColourValue CellForeColor() const { return current().fore; }
    void setCellForeColor(ColourValue colour);

    /// Any cell's text. Fails with 30009 outside of the grid.
    const QString& TextMatrix(int row, int col) const { return m_cells[place(row, col)].text; }
    void setTextMatrix(int row, int col, const QString& text);
    /// Any cell's colours. Fail with 30009 outside of the grid.
    ColourValue backColor(int row, int col) const { return m_cells[place(row, col)].back; }
    ColourValue foreColor(int row, int col) const { return m_cells[place(row, col)].fore; }

    /// Appends a row with the text in its first column; tabs stay part of the text. Fails with
    /// 30006 above MaxCells cells.
    void AddItem(const QString& text);
    /// Removes a row; one past the end stands for the last row. A current row past the end becomes
    /// the last row. Fails with 30009 for a negative row and with 30015 for the only row.
    void RemoveItem(int row);
    /// Empties every cell and gives it the default colours. The size stays.
    void Clear();

    /// Told after each move of the current cell. A plain function and no signal, since the reminder
    /// scan moves the current cell over every row once a second.
    void whenCurrentMoves(std::function<void()> told) { m_currentMoved = std::move(told); }

    /// Whether rows or columns are being added or taken away right now.
    bool isChanging() const { return m_changing; }

    /// While one lives, changes are not told one by one; the views hear of a reset at its end.
    class Batch {
    public:
        explicit Batch(GridModel& grid);
        ~Batch();
        Q_DISABLE_COPY_MOVE(Batch)
    private:
        GridModel& m_grid;
    };

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Cell {
        QString text;
        ColourValue back = White;
        ColourValue fore = Black;
    };

    const Cell& current() const { return m_cells[at(m_row, m_col)]; }
    std::size_t at(int row, int col) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_cols) +
               static_cast<std::size_t>(col);
    }
    std::size_t place(int row, int col) const;
    void changed(int row, int col);
    bool told() const { return m_batches == 0; }
    void tellMoved();
    template <class Change>
    void changeRows(bool grows, int first, int last, Change&& change);

    std::vector<Cell> m_cells{1};
    int m_rows = 1;
    int m_cols = 1;
    int m_row = 0;
    int m_col = 0;
    int m_batches = 0;
    bool m_changing = false;
    std::function<void()> m_currentMoved;
};

} // namespace orvalis
