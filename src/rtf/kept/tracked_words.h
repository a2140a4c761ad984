// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

namespace orvalis::rtf {

/// Tells which of the words that are kept of characters tell of a tracked change. Most text has the
/// words of the text ahead of it, or none.
class TrackedWords {
public:
    /// \param names must outlive this.
    explicit TrackedWords(const Names& names)
        : m_names(names) {}

    /// \param kept as the names have it.
    bool has(int kept) {
        if (kept != m_kept)
            look(kept);
        return m_has;
    }

private:
    void look(int kept);

    const Names& m_names;
    int m_kept = NothingKept;
    bool m_has = false;
};

} // namespace orvalis::rtf
