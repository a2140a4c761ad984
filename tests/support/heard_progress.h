// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <algorithm>

namespace orvalis::test {

/// Hears of long work, and how well it is told.
class HeardProgress {
public:
    int times = 0;

    rtf::Progress hears() {
        return [this](double share) {
            m_rises = m_rises && share >= m_last && share <= 1;
            m_widest = std::max(m_widest, share - m_last);
            m_last = share;
            ++times;
        };
    }

    /// Whether it went from 0 to 1, never back, and no step was wider than this.
    bool roseInSteps(double widest) const {
        return m_rises && times > 0 && std::max(m_widest, 1 - m_last) <= widest;
    }

private:
    double m_last = 0;
    double m_widest = 0;
    bool m_rises = true;
};

} // namespace orvalis::test
