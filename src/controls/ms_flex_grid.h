// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/grid_model.h"

#include <QTableView>

#include <vector>

namespace orvalis {

/// The list grid: shows a GridModel of its own, moves its current cell by mouse and arrow keys and
/// tells what is typed. It never edits by itself; the form does.
class MSFlexGrid : public QTableView {
    Q_OBJECT
public:
    explicit MSFlexGrid(QWidget* parent = nullptr);

    /// The cells without their view, for the rules that need no window.
    GridModel& grid() { return m_grid; }
    const GridModel& grid() const { return m_grid; }

    /// The same as on GridModel, failures included.
    int Rows() const { return m_grid.Rows(); }
    void setRows(int rows) { m_grid.setRows(rows); }
    int Cols() const { return m_grid.Cols(); }
    void setCols(int cols) { m_grid.setCols(cols); }
    int Row() const { return m_grid.Row(); }
    void setRow(int row) { m_grid.setRow(row); }
    int Col() const { return m_grid.Col(); }
    void setCol(int col) { m_grid.setCol(col); }
    const QString& Text() const { return m_grid.Text(); }
    void setText(const QString& text) { m_grid.setText(text); }
    const QString& TextMatrix(int row, int col) const { return m_grid.TextMatrix(row, col); }
    void setTextMatrix(int row, int col, const QString& text) {
        m_grid.setTextMatrix(row, col, text);
    }
    void AddItem(const QString& text) { m_grid.AddItem(text); }
    void RemoveItem(int row) { m_grid.RemoveItem(row); }
    void Clear() { m_grid.Clear(); }
    ColourValue CellBackColor() const { return m_grid.CellBackColor(); }
    void setCellBackColor(ColourValue colour) { m_grid.setCellBackColor(colour); }
    ColourValue CellForeColor() const { return m_grid.CellForeColor(); }
    void setCellForeColor(ColourValue colour) { m_grid.setCellForeColor(colour); }

    /// A column's width in twips. A single column is drawn no wider than the room beside the scroll
    /// bar. Fails with 30009 for a column outside of the grid.
    int ColWidth(int col) const;
    void setColWidth(int col, int twips);

    void keyboardSearch(const QString& search) override;

signals:
    /// A key that writes: printable text (of an input method too), "\r" for Enter, "\b" for
    /// Backspace.
    void KeyPress(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void updateGeometries() override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void showCurrentCell();
    void applyColumnWidths();
    void followFont();

    GridModel m_grid;
    std::vector<int> m_colWidths;
    bool m_following = false;
};

} // namespace orvalis
