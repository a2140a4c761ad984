// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QTextBlock>

namespace orvalis::rtf {

class DocumentFormats;

/// Tells behind which run of a document that has an anchor this is written. Text set into the
/// middle of such a run parts it, and leaves the anchor with the last part.
class AnchoredRuns {
public:
    /// \param formats of the document; must outlive this.
    explicit AnchoredRuns(DocumentFormats& formats)
        : m_formats(formats) {}

    void beginParagraph() { m_ends.clear(); }
    /// The runs of the paragraph that have anchors must be asked for in their order.
    /// \param run one of them.
    /// \param start where it begins in the paragraph, in characters.
    bool ends(int anchors, const QTextBlock::iterator& run, int start);

private:
    void findEnds(QTextBlock::iterator run, int start);

    DocumentFormats& m_formats;
    QHash<int, int> m_ends; ///< where the last run of each ends in the paragraph
    QSet<int> m_written;
};

} // namespace orvalis::rtf
