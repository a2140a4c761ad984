// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

namespace orvalis {

/// The positions of the line breaks inside a document's paragraphs, in order.
///
/// An edit moves every break behind it. So those behind the last edit are kept without what they
/// have moved by, and edits that follow one another through the text move none of them at all.
class LineBreaks {
public:
    int count() const { return int(m_places.size()); }
    /// How many stand ahead of a position.
    int before(int position) const;
    void clear();
    /// A part of the text was replaced. \param found the breaks inside what came, in order.
    void replace(int from, int removed, int added, const std::vector<int>& found);

private:
    int place(std::size_t index) const {
        return m_places[index] + (index < m_settled ? 0 : m_shift);
    }
    void settleUpTo(std::size_t index);

    std::vector<int> m_places;
    std::size_t m_settled = 0; ///< so many of them stand where they say
    int m_shift = 0;           ///< by which the others have moved
};

} // namespace orvalis
