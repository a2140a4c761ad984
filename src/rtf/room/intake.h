// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/room/layout_height.h"
#include "rtf/room/paragraph_height.h"

class QTextBlock;
class QTextCharFormat;
class QTextCursor;

namespace orvalis::rtf {

class DocumentRoom;

/// One insertion into a document, as far as there is room for it (see DocumentRoom).
///
/// Whoever inserts asks ahead of each piece how much of it may come. Behind the first piece that
/// did not fit nothing more does: a document ends where it is full, and has no holes.
class Intake {
public:
    /// \param cursor where the insertion goes; what it selects has been removed.
    explicit Intake(const QTextCursor& cursor);

    bool isFull() const { return m_full; }
    /// The most characters that the paragraph can take yet.
    qsizetype mostInParagraph() const;
    /// The most characters that another paragraph could take.
    qsizetype mostInFurtherParagraph() const;

    /// Whether a further paragraph may begin.
    bool takesParagraph(const LetterHeight& mark, const ParagraphShape& shape);
    /// Whether a paragraph that stands may take another shape.
    bool takesShape(const QTextBlock& paragraph, const ParagraphShape& shape);
    bool takesPicture(double height, const LetterHeight& letters, const ParagraphShape& shape);
    /// How many of a run's first characters may come.
    qsizetype taken(QStringView run, const LetterHeight& letters, const ParagraphShape& shape);
    /// As taken(), of text in which LF ends paragraphs.
    qsizetype takenLines(QStringView text, const LetterHeight& letters,
                         const ParagraphShape& shape);

private:
    bool spend(const ParagraphHeight& grown, double height);
    double heightLeft(double wanted);
    void take(double height);

    DocumentRoom& m_room;
    qsizetype m_charactersLeft;
    qsizetype m_paragraphsLeft;
    qsizetype m_behind;          ///< characters behind the insertion in its last paragraph
    qsizetype m_paragraphLeft;   ///< characters
    ParagraphHeight m_paragraph; ///< as far as it is taken
    bool m_gathers = false;      ///< much is taken before any of it is inserted
    double m_gathered = 0;       ///< pixels
    bool m_full = false;
};

/// Whether text can be typed over the selection. A carriage return stands for a paragraph's end.
bool hasRoomFor(const QTextCursor& selection, QStringView typed);

} // namespace orvalis::rtf
