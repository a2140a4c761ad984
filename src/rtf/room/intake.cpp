// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/intake.h"

#include "rtf/room/document_height.h"
#include "rtf/room/document_room.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace orvalis::rtf {

Intake::Intake(const QTextCursor& cursor)
    : m_room(DocumentRoom::of(*cursor.document()))
    , m_charactersLeft(MostCharacters - cursor.document()->characterCount())
    , m_paragraphsLeft(MostParagraphs - cursor.document()->blockCount())
    , m_behind(cursor.block().length() - 1 - cursor.positionInBlock())
    , m_paragraphLeft(LongestParagraph - (cursor.block().length() - 1)) {
    if (m_behind == 0)
        return;
    // What is behind begins elsewhere in its line.
    const LetterHeight letters =
        letterHeight(cursor.charFormat(), cursor.document()->defaultFont());
    m_room.take(heightOfRun({}, letters, paragraphShape(cursor.blockFormat())));
}

qsizetype Intake::mostInParagraph() const {
    return m_full ? 0 : std::max<qsizetype>(0, std::min(m_charactersLeft, m_paragraphLeft));
}

qsizetype Intake::mostInFurtherParagraph() const {
    return m_full ? 0
                  : std::max<qsizetype>(
                        0, std::min(m_charactersLeft - 1, LongestParagraph - m_behind));
}

double Intake::heightLeft(double wanted) {
    return m_room.heightLeft(wanted, m_gathered);
}

void Intake::take(double height) {
    m_room.take(height);
    if (m_gathers)
        m_gathered += height;
}

/// \param grown the paragraph with what comes, by a height.
bool Intake::spend(const ParagraphHeight& grown, double height) {
    if (m_full || heightLeft(height) < height) {
        m_full = true;
        return false;
    }
    take(height);
    m_paragraph = grown;
    return true;
}

bool Intake::takesParagraph(const LetterHeight& mark, const ParagraphShape& shape) {
    if (m_charactersLeft <= 0 || m_paragraphsLeft <= 0)
        m_full = true;
    const ParagraphHeight begun(mark, shape);
    if (!spend(begun, begun.height()))
        return false;
    --m_charactersLeft;
    --m_paragraphsLeft;
    m_paragraphLeft = LongestParagraph - m_behind;
    return true;
}

bool Intake::takesShape(const QTextBlock& paragraph, const ParagraphShape& shape) {
    const double height = paragraphHeight(paragraph, shape);
    if (heightLeft(height) < height)
        return false;
    take(height);
    return true;
}

bool Intake::takesPicture(double height, const LetterHeight& letters, const ParagraphShape& shape) {
    if (mostInParagraph() == 0)
        m_full = true;
    ParagraphHeight grown = m_paragraph;
    grown.addPicture(height, letters, shape);
    if (!spend(grown, grown.height() - m_paragraph.height()))
        return false;
    --m_charactersLeft;
    --m_paragraphLeft;
    return true;
}

qsizetype Intake::taken(QStringView run, const LetterHeight& letters, const ParagraphShape& shape) {
    if (m_full || run.isEmpty())
        return 0;
    const auto with = [&](qsizetype length) {
        ParagraphHeight grown = m_paragraph;
        grown.add(run.first(length), letters, shape);
        return grown;
    };
    qsizetype length = wholeCharacters(run, std::min(run.size(), mostInParagraph()));
    ParagraphHeight grown = with(length);
    const double before = m_paragraph.height();
    const double left = heightLeft(grown.height() - before);
    if (left < grown.height() - before) {
        qsizetype fits = 0;
        while (fits + 1 < length) {
            const qsizetype middle = (fits + length) / 2;
            (with(middle).height() - before <= left ? fits : length) = middle;
        }
        length = wholeCharacters(run, fits);
        grown = with(length);
    }
    take(grown.height() - before);
    m_paragraph = grown;
    m_charactersLeft -= length;
    m_paragraphLeft -= length;
    m_full = length < run.size();
    return length;
}

qsizetype Intake::takenLines(QStringView text, const LetterHeight& letters,
                             const ParagraphShape& shape) {
    qsizetype at = 0;
    m_gathers = true;
    while (!m_full) {
        qsizetype end = text.indexOf(u'\n', at);
        if (end < 0)
            end = text.size();
        if (end > at)
            at += taken(text.sliced(at, end - at), letters, shape);
        if (at == text.size() || !takesParagraph(letters, shape))
            break;
        ++at;
    }
    m_gathers = false;
    m_gathered = 0;
    return at;
}

bool hasRoomFor(const QTextCursor& selection, QStringView typed) {
    QTextDocument& document = *selection.document();
    const LetterHeight letters = measuredHeight(selection.charFormat(), document.defaultFont());
    const ParagraphShape shape = paragraphShape(selection.blockFormat());
    if (selection.hasSelection()) // which gives way, so that a full document can be changed
        return DocumentRoom::of(document).heightLeft(1) > 0;
    Intake intake(selection);
    if (typed == u"\r" || typed == u"\n")
        return intake.takesParagraph(letters, shape);
    return intake.taken(typed, letters, shape) == typed.size();
}

} // namespace orvalis::rtf
