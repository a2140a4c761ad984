// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/intake.h"

#include "rtf/document_room.h"

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
    // A run that is split stands in one line more.
    const LetterHeight letters =
        letterHeight(cursor.charFormat(), cursor.document()->defaultFont());
    m_room.take(heightOfLine(letters, paragraphShape(cursor.blockFormat())));
}

qsizetype Intake::mostInParagraph() const {
    return m_full ? 0 : std::max<qsizetype>(0, std::min(m_charactersLeft, m_paragraphLeft));
}

double Intake::heightLeft(double wanted) {
    return m_room.heightLeft(wanted, m_gathered);
}

void Intake::take(double height) {
    m_room.take(height);
    if (m_gathers)
        m_gathered += height;
}

bool Intake::spend(double height) {
    if (m_full || heightLeft(height) < height) {
        m_full = true;
        return false;
    }
    take(height);
    return true;
}

bool Intake::takesParagraph(const LetterHeight& mark, const ParagraphShape& shape) {
    if (m_charactersLeft <= 0 || m_paragraphsLeft <= 0)
        m_full = true;
    if (!spend(heightOfParagraph(mark, shape)))
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
    if (!spend(heightOfPicture(height, letters, shape)))
        return false;
    --m_charactersLeft;
    --m_paragraphLeft;
    return true;
}

qsizetype Intake::taken(QStringView run, const LetterHeight& letters, const ParagraphShape& shape) {
    if (m_full)
        return 0;
    qsizetype length = wholeCharacters(run, std::min(run.size(), mostInParagraph()));
    const double wanted = heightOfRun(run.first(length), letters, shape);
    const double left = heightLeft(wanted);
    if (left < wanted)
        length = charactersWithin(left, run.first(length), letters, shape);
    take(heightOfRun(run.first(length), letters, shape));
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
    const LetterHeight letters = letterHeight(selection.charFormat(), document.defaultFont());
    const ParagraphShape shape = paragraphShape(selection.blockFormat());
    if (selection.hasSelection()) // which gives way, so that a full document can be changed
        return DocumentRoom::of(document).heightLeft(1) > 0;
    Intake intake(selection);
    if (typed == u"\r" || typed == u"\n")
        return intake.takesParagraph(letters, shape);
    return intake.taken(typed, letters, shape) == typed.size();
}

} // namespace orvalis::rtf
