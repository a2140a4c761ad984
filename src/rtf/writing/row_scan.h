// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"
#include "rtf/kept/kept_row.h"

#include <array>
#include <vector>

namespace orvalis::rtf {

/// Goes through the lines of a document that a row of a table stands in, and finds whether the row
/// is all there, and so the rows of tables in its cells.
class RowScan {
public:
    explicit RowScan(const Names& names)
        : m_names(names) {}

    /// The next line begins.
    void line(const ParagraphFormat& format, bool isEmpty);
    /// Tabs follow that end cells.
    /// \param nesting of the table that these are of, 0 for the row's own.
    void cellsEnd(int nesting, int count);
    /// No line follows.
    void end();

    qsizetype lines() const { return qsizetype(m_endsNested.size()); }
    bool isWhole() const;
    /// Whether nothing but paragraphs without text stands in it, so that there is no row.
    bool isEmpty() const { return m_empty; }
    bool nestedAreWhole() const { return m_nestedAreWhole; }
    /// Whether a row of a table in a cell ends with a line.
    bool endsNested(qsizetype line) const { return m_endsNested[size_t(line)]; }
    /// What is kept of the row.
    int row() const { return m_row; }

private:
    void endLine();
    void deeperEnd(int nesting);
    bool numbersCells() const;

    const Names& m_names;
    ParagraphFormat m_line; ///< the last one
    bool m_cellsEndInLine = false;
    int m_row = NothingKept;
    bool m_told = false; ///< what is kept of the row, not of a line in it
    bool m_empty = true;
    bool m_nestedAreWhole = true;
    qsizetype m_cells = 1;
    std::array<int, MostNesting + 1> m_nested{}; ///< cells that have ended, by their nesting
    std::vector<bool> m_endsNested;
};

} // namespace orvalis::rtf
