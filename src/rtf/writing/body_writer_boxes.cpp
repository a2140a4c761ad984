// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_shape.h"
#include "rtf/kept/kept_text.h"
#include "rtf/writing/body_writer.h"
#include "rtf/writing/kept_writer.h"
#include "rtf/writing/picture_writer.h"

namespace orvalis::rtf {

ShapeFrame BodyWriter::frameOf(int box) const {
    const QString kept = m_tables.names().keptAt(box);
    return shapeFrame(QStringView(kept).sliced(kept.indexOf(NumberEnd) + 1));
}

bool BodyWriter::isInBox(const ParagraphFormat& paragraph) const {
    return paragraph.box == m_box && (m_box == NothingKept || paragraph.boxPlace == m_boxPlace);
}

/// Leaves the text box that is open and enters the one that the paragraph stands in.
/// \returns whether all is told that stands ahead of the paragraph.
bool BodyWriter::goToBox(const ParagraphFormat& paragraph) {
    if (isInBox(paragraph))
        return false;
    const bool leaves = m_box != NothingKept;
    const bool isFurther = leaves && paragraph.box == m_box && paragraph.boxPlace > m_boxPlace &&
                           m_frame.has(paragraph.boxPlace);
    if (isFurther) {
        leaveText();
        enterBox(paragraph.boxPlace);
        return true;
    }
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

bool BodyWriter::hasRows(const ParagraphFormat& paragraph) const {
    if (isInBox(paragraph))
        return m_anyRow;
    return paragraph.box == NothingKept && m_around.anyRow;
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
    m_frame = frameOf(m_box);
    writeKept(m_out, m_tables, m_frame.ahead);
    m_boxPlace = -1;
    enterBox(std::clamp(paragraph.boxPlace, 0, std::max(int(m_frame.places.size()) - 1, 0)));
}

/// Passes over what somebody has taken out of the frame, and the ends of its paragraphs with it.
void BodyWriter::passPlaces(int next) {
    while (++m_boxPlace < next) {
        QStringView behind = m_frame.places[size_t(m_boxPlace)].behind;
        if (behind.startsWith(ParagraphEndsFirst))
            behind = behind.sliced(ParagraphEndsFirst.size());
        writeKept(m_out, m_tables, behind);
    }
}

/// Goes on in the frame to one of the things that it shows.
void BodyWriter::enterBox(int place) {
    passPlaces(place);
    m_mark = NothingKept;
    m_afterBehind = NoLength;
    m_paragraphEnds = false;
    m_paragraphIsEmpty = true;
    m_rowEnds = false;
    m_anyRow = false;
    m_boxIsEmpty = true;
    if (isAtPicture())
        return;
    plain();
    m_paragraphs.forget();
}

bool BodyWriter::isAtPicture() const {
    return m_frame.isPicture(m_boxPlace);
}

/// What ends the last paragraph of a text, if anything does, is part of the frame.
void BodyWriter::leaveText() {
    QString behind =
        m_frame.has(m_boxPlace) ? m_frame.places[size_t(m_boxPlace)].behind : QString();
    if (!isAtPicture()) {
        tellAfter();
        // A row has ended by itself, where it is the last one.
        if (m_rowEnds && behind.startsWith(ParagraphEndsFirst))
            behind.remove(0, ParagraphEndsFirst.size());
        // Nothing else would tell of a paragraph without text.
        if (m_paragraphEnds && m_paragraphIsEmpty && !behind.startsWith(u"\\par"))
            m_out.word("\\par");
        if (m_boxIsEmpty)
            m_out.word(ShownEmpty);
    }
    writeKept(m_out, m_tables, behind);
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

void BodyWriter::closeBox() {
    leaveText();
    passPlaces(int(m_frame.places.size()));
    m_box = NothingKept;
}

bool BodyWriter::isPictureOfBox(const ParagraphFormat& paragraph) const {
    return paragraph.box == m_box ? m_frame.isPicture(paragraph.boxPlace)
                                  : frameOf(paragraph.box).isPicture(paragraph.boxPlace);
}

bool BodyWriter::pictureOfBox(const ParagraphFormat& paragraph, const Picture& picture) {
    if (isInBox(paragraph))
        return false;
    goTo(paragraph);
    m_out.structure(pictureOfShape(picture));
    return true;
}

/// Writes a picture that is a shape.
bool BodyWriter::framed(const Picture& picture) {
    const ShapeFrame frame = shapeFrame(picture.frame);
    if (frame.places.empty())
        return false;
    writeKept(m_out, m_tables, frame.ahead);
    m_out.structure(pictureOfShape(picture));
    writeKept(m_out, m_tables, frame.places.front().behind);
    return true;
}

} // namespace orvalis::rtf
