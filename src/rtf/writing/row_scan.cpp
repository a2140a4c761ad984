// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/row_scan.h"

namespace orvalis::rtf {

void RowScan::line(const ParagraphFormat& format, bool isEmpty) {
    if (!m_endsNested.empty() && m_line.nestedRow != format.nestedRow)
        endLine();
    // What one paragraph has for itself is not told of the whole row.
    const bool open = isOpenRow(m_names.keptAt(format.row));
    m_empty = m_empty && open && isEmpty;
    if (!open || !m_told)
        m_row = format.row;
    m_told = m_told || !open;
    m_line = format;
    m_cellsEndInLine = false;
    m_endsNested.push_back(false);
}

/// Somebody may have parted the last paragraph of a nested row; it ends with the last part.
void RowScan::endLine() {
    if (m_line.nestedRow == NothingKept)
        return;
    deeperEnd(m_line.nesting + 1);
    int& cells = m_nested[size_t(m_line.nesting)];
    m_nestedAreWhole = m_nestedAreWhole && m_line.nesting != 0 &&
                       cells + 1 == cellsOfNestedRow(m_names.keptAt(m_line.nestedRow));
    cells = 0;
    m_endsNested.back() = true;
}

/// No table that is nested as deep may be open here.
void RowScan::deeperEnd(int nesting) {
    for (size_t deeper = size_t(nesting); deeper < m_nested.size(); ++deeper)
        if (std::exchange(m_nested[deeper], 0) != 0)
            m_nestedAreWhole = false;
}

void RowScan::cellsEnd(int nesting, int count) {
    m_cellsEndInLine = true;
    deeperEnd(nesting + 1);
    if (nesting == 0)
        m_cells += count;
    else
        m_nested[size_t(nesting)] += count;
}

void RowScan::end() {
    if (!m_endsNested.empty())
        endLine();
    deeperEnd(1);
    // The row's own last cell ends with the last line.
    if (!m_endsNested.empty() && m_endsNested.back())
        m_nestedAreWhole = false;
}

/// Whether the last line has a number ahead of several cells, which a row that ends has not.
bool RowScan::numbersCells() const {
    return m_cellsEndInLine && m_line.list.kind != ListKind::None &&
           m_line.list.source == ListSource::Numbering;
}

bool RowScan::isWhole() const {
    const QString kept = m_names.keptAt(m_row);
    return !m_empty && !m_line.rowStaysOpen && !numbersCells() &&
           m_cells == (m_told ? cellsOfRow(kept) : cellsOfRow(wordsOfRow(kept).toString()));
}

} // namespace orvalis::rtf
