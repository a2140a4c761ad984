// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/line_breaks.h"

#include <algorithm>

namespace orvalis {

int LineBreaks::before(int position) const {
    std::size_t low = 0;
    std::size_t high = m_places.size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (place(middle) < position)
            low = middle + 1;
        else
            high = middle;
    }
    return int(low);
}

void LineBreaks::clear() {
    m_places.clear();
    m_settled = 0;
    m_shift = 0;
}

void LineBreaks::settleUpTo(std::size_t index) {
    for (; m_settled < index; ++m_settled)
        m_places[m_settled] += m_shift;
    for (; m_settled > index; --m_settled)
        m_places[m_settled - 1] -= m_shift;
}

void LineBreaks::replace(int from, int removed, int added, const std::vector<int>& found) {
    const auto first = std::size_t(before(from));
    const auto behind = std::size_t(before(from + removed));
    settleUpTo(behind);
    const std::size_t gone = behind - first;
    const std::size_t kept = std::min(gone, found.size());
    const auto at = m_places.begin() + std::ptrdiff_t(first);
    std::copy_n(found.begin(), kept, at);
    if (gone > kept)
        m_places.erase(at + std::ptrdiff_t(kept), at + std::ptrdiff_t(gone));
    else
        m_places.insert(at + std::ptrdiff_t(kept), found.begin() + std::ptrdiff_t(kept),
                        found.end());
    m_settled = first + found.size();
    m_shift += added - removed;
}

} // namespace orvalis
