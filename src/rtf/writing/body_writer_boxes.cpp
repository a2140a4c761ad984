// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_shape.h"
#include "rtf/kept/kept_text.h"
#include "rtf/writing/body_writer.h"
#include "rtf/writing/kept_writer.h"
#include "rtf/writing/picture_writer.h"

namespace orvalis::rtf {

namespace {

struct Frame {
    QString ahead;
    QString behind;
};

/// What is kept of a shape, ahead of what it shows and behind that.
Frame frameOf(const QString& kept) {
    const QLatin1StringView place(ShapePlace.data(), ShapePlace.size());
    const qsizetype start = kept.indexOf(NumberEnd) + 1;
    const qsizetype at = kept.indexOf(place, start);
    if (at < 0)
        return {};
    // Ahead of text the word ends with a blank of its own.
    const qsizetype end = at + place.size();
    const bool isDelimited = end < kept.size() && kept[end] == u' ';
    return {kept.sliced(start, at - start), kept.sliced(end + (isDelimited ? 1 : 0))};
}

} // namespace

/// Leaves the text box that is open and enters the one that the paragraph stands in.
/// \returns whether all is told that stands ahead of the paragraph.
bool BodyWriter::goToBox(const ParagraphFormat& paragraph) {
    if (paragraph.box == m_box)
        return false;
    const bool leaves = m_box != NothingKept;
    if (leaves)
        closeBox();
    if (paragraph.box != NothingKept) {
        openBox(paragraph);
        return true;
    }
    m_goesOn = leaves && goesOn(paragraph);
    if (m_goesOn)
        m_paragraphEnds = false;
    return m_goesOn;
}

/// Whether a paragraph behind a box is the rest of the one ahead of it, shaped as that still is.
bool BodyWriter::goesOn(const ParagraphFormat& paragraph) const {
    if (!paragraph.goesOn || !m_paragraphEnds || paragraph.section != NothingKept)
        return false;
    const auto shapeOf = [](const ParagraphFormat& whole) {
        ParagraphFormat shape = whole;
        shape.goesOn = false;
        shape.pageBreakBefore = false;
        shape.pageWord = PageWord::OfParagraph;
        shape.anchors = shape.section = shape.mark = NothingKept;
        shape.afterAhead = NoLength;
        shape.stated = 0;
        shape.list = {};
        return shape;
    };
    return shapeOf(paragraph) == shapeOf(m_around.paragraph);
}

bool BodyWriter::hasRows(int box) const {
    if (box == m_box)
        return m_anyRow;
    return box == NothingKept && m_around.anyRow;
}

void BodyWriter::openBox(const ParagraphFormat& paragraph) {
    const bool inTable = m_rowEnds || m_paragraphs.last().inTable;
    if (paragraph.section != NothingKept)
        beginSection(names().keptAt(paragraph.section));
    else if (paragraph.boxAhead)
        endLastParagraph();
    else
        tellAfter();
    if (inTable) {
        // The box would be in the table else.
        m_out.word("\\pard");
        m_paragraphs.forget();
    }
    m_around = {
        {m_format, m_stated}, m_paragraphs.last(),           m_mark, m_afterBehind, m_paragraphEnds,
        m_paragraphIsEmpty,   std::exchange(m_anyRow, false)};
    m_box = paragraph.box;
    m_mark = NothingKept;
    m_afterBehind = NoLength;
    m_paragraphEnds = false;
    m_paragraphIsEmpty = true;
    m_rowEnds = false;
    m_boxIsEmpty = true;
    writeKept(m_out, m_tables, frameOf(names().keptAt(m_box)).ahead);
    plain();
    m_paragraphs.forget();
}

/// What ends the last paragraph of a box, if anything does, is part of the frame.
void BodyWriter::closeBox() {
    QString behind = frameOf(names().keptAt(m_box)).behind;
    tellAfter();
    // A row has ended by itself, where it is the last one.
    if (m_rowEnds && behind.startsWith(ParagraphEndsFirst))
        behind.remove(0, ParagraphEndsFirst.size());
    // Nothing else would tell of a paragraph without text.
    if (m_paragraphEnds && m_paragraphIsEmpty && !behind.startsWith(u"\\par"))
        m_out.word("\\par");
    if (m_boxIsEmpty)
        m_out.word(ShownEmpty);
    writeKept(m_out, m_tables, behind);
    m_box = NothingKept;
    m_anyRow = m_around.anyRow;
    m_format = m_around.look.format;
    m_stated = m_around.look.stated;
    m_symbols = m_tables.symbolFontOf(m_format.family);
    m_mark = m_around.mark;
    m_afterBehind = m_around.afterBehind;
    m_paragraphEnds = m_around.paragraphEnds;
    m_paragraphIsEmpty = m_around.paragraphIsEmpty;
    m_rowEnds = false;
    m_paragraphs.goBack(m_around.paragraph);
}

/// Writes a picture that is a shape.
bool BodyWriter::framed(const Picture& picture) {
    const Frame frame = frameOf(picture.frame);
    const QByteArray group = frame.ahead.isEmpty() ? QByteArray() : pictureOfShape(picture);
    if (group.isEmpty())
        return false;
    writeKept(m_out, m_tables, frame.ahead);
    m_out.structure(group);
    writeKept(m_out, m_tables, frame.behind);
    return true;
}

} // namespace orvalis::rtf
