// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/line_breaks.h"

#include <QString>

class QTextDocument;

namespace orvalis {

/// Converts between positions of a document, where a break counts one, and indexes into its plain
/// text, where it counts two; and holds that text.
///
/// Nothing is rebuilt for a change: an index is the position plus the breaks ahead of it, and of
/// the text the changed part alone is replaced.
class TextPositions {
public:
    explicit TextPositions(QTextDocument& document);

    /// Length of the plain text.
    int length() const;
    /// The index of a document's position.
    int indexOf(int position) const;
    /// The document's position of an index: at most the end; the place ahead of a break for an
    /// index between its CR and LF.
    int positionOf(int index) const;
    /// The plain text between two positions of the document.
    QString between(int from, int to) const;
    const QString& text() const;
    /// Whether text() costs nothing at the moment.
    bool hasText() const { return m_textValid; }

    /// The document told of a change (QTextDocument::contentsChange).
    /// \returns the position up to which it reaches: what is told ends too early where an edit
    /// block made a list longer ahead of another change.
    int contentsChanged(int from, int removed, int added);
    /// The same for a change made of several in any order: with lists about, everything is looked
    /// at again.
    int manyContentsChanged(int from, int removed, int added);
    /// A change inside an open edit block, of which the document will tell when the block closes.
    void changedInBlock(int from, int removed, int added);
    /// The edit block closed, and the document told of it if anything had changed.
    void blockClosed() { m_seenInBlock = false; }

private:
    int lastPosition() const;
    int reach(int from, int added) const;
    bool hasLists() const;
    QString rawText(int from, int to) const;
    void appendBlocks(QString& plain, int from, int to) const;
    void scanBreaks(int from, int removed, int added);
    void patchText(int from, int added);

    QTextDocument& m_document;
    LineBreaks m_lineBreaks; ///< U+2028
    int m_characters;        ///< of the document at the last change that was seen
    bool m_seenInBlock = false;
    int m_untouched = 0; ///< characters behind the last change that was seen in the block
    mutable bool m_textValid = false;
    mutable QString m_text;
};

} // namespace orvalis
