// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/tracked_words.h"

#include "rtf/kept/kept_text.h"

namespace orvalis::rtf {

void TrackedWords::look(int kept) {
    m_kept = kept;
    m_has = isTracked(m_names.keptAt(kept));
}

} // namespace orvalis::rtf
