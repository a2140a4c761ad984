// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/anchored_runs.h"

#include "rtf/writing/document_formats.h"

#include <QTextFragment>

namespace orvalis::rtf {

bool AnchoredRuns::ends(int anchors, const QTextBlock::iterator& run, int start) {
    if (m_ends.isEmpty())
        findEnds(run, start);
    const int end = start + run.fragment().length();
    if (m_ends.value(anchors) != end || m_written.contains(anchors))
        return false;
    m_written.insert(anchors);
    return true;
}

void AnchoredRuns::findEnds(QTextBlock::iterator run, int start) {
    for (int end = start; !run.atEnd(); ++run) {
        const QTextFragment fragment = run.fragment();
        end += fragment.length();
        if (const int anchors = m_formats.lookOf(fragment).anchors; anchors != NothingKept)
            m_ends.insert(anchors, end);
    }
}

} // namespace orvalis::rtf
