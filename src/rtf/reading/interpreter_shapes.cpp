// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_text.h"
#include "rtf/kept/shape_frame.h"
#include "rtf/reading/formula_text.h"
#include "rtf/reading/interpreter.h"
#include "rtf/reading/shape_scan.h"

#include <algorithm>
#include <utility>

namespace orvalis::rtf {

/// The frame of a shape goes with the picture or the texts that the shape shows; of one that shows
/// neither the whole is kept at its place.
void Interpreter::keepShape(const Token& token) {
    constexpr int MostShapes = 4096; // each makes a format of its own
    // The look ahead reads all that is in a shape, so those inside are not looked into again.
    const auto kind = static_cast<ShapeKind>(token.word->value);
    const bool isFormula = kind == ShapeKind::Formula;
    const bool isObject = kind == ShapeKind::Object;
    const bool inShape = m_state.inShape;
    bool& looked = isFormula ? m_state.inFormula : isObject ? m_state.inObject : m_state.inShape;
    // What is another form of a picture would not be that in a copy.
    if (std::exchange(looked, true) || m_shapes >= MostShapes || !shows() || m_state.fallback)
        return;
    ++m_shapes;
    const ShapeScan scan = scanShape(m_tokenizer.groupAhead());
    const bool isPicture = scan.shows == ShapeScan::Shows::Picture;
    if (isFormula && !isPicture) {
        keepFormula();
        return;
    }
    const bool isBox = scan.shows == ShapeScan::Shows::Boxes;
    if (isObject && scan.shows == ShapeScan::Shows::More && scan.places.empty()) {
        keepObjectOfText(token.bytes);
        return;
    }
    const bool inFrame = inShape && m_box.depth == 0;
    if ((isFormula && (inShape || isBox)) || (isObject && (inFrame || isBox)))
        return;
    if (isBox)
        m_state.chars.field = NothingKept; // for that ends with its paragraph
    if (m_state.inTable && isBox) {
        expectLineBox(token, scan);
        return;
    }
    if (scan.shows == ShapeScan::Shows::More)
        return;
    m_state.inShape = true;
    const FileTables tables = fileTables(m_fonts.usual());
    QString kept = GroupKeeper(scan.frame, tables).kept("{\\", token.bytes, m_keptLeft);
    m_keptLeft -= kept.size();
    if (!isPicture)
        kept = inField(kept);
    if (kept.isEmpty())
        return;
    if (isPicture) {
        m_state.frame = m_names.kept(kept);
    } else if (isBox) {
        m_state.box = m_names.kept(QString::number(m_shapes) + NumberEnd + kept);
        m_state.ownBox = m_state.box;
        m_box.shapeDepth = m_groups.size();
        m_box.places = scan.places;
        for (qsizetype& place : m_box.places)
            place += m_tokenizer.position();
    } else {
        skipGroup();
        anchor(kept);
    }
}

/// A formula without a picture shows the text of its parts in one line, and is kept as long as that
/// stays.
void Interpreter::keepFormula() {
    const FileTables tables = fileTables(m_fonts.usual());
    const QString kept =
        GroupKeeper(m_tokenizer.groupAhead(), tables).kept("{\\", "mmath", m_keptLeft);
    m_keptLeft -= kept.size();
    const QByteArray copy = keptWithoutPlaces(kept);
    const QString text = formulaText(copy);
    const bool inField = m_state.chars.field != NothingKept;
    if (kept.isEmpty() || (inField && !text.isEmpty()))
        return;
    // Words that the copy leaves out may have hidden what it shows.
    constexpr QByteArrayView Head = "{\\mmath";
    const QByteArrayView content = QByteArrayView(copy).sliced(Head.size()).chopped(1);
    if (scanShape(content).shows == ShapeScan::Shows::Picture)
        return;
    skipGroup();
    if (text.isEmpty()) {
        anchor(kept);
        return;
    }
    m_state.chars.field =
        m_names.kept(QString::number(m_shapes) + NumberEnd + keptOf({kept, {}, text}));
    m_state.chars.byNumber = m_state.symbols != SymbolFont::None;
    prepareText();
    appendSigns(text, SymbolFont::None);
    m_state.chars.byNumber = false;
    m_state.chars.field = NothingKept;
}

/// The group of a box's text has begun.
void Interpreter::expectBox() {
    // Each text of a shape has lines of its own.
    if (m_lineBox.isOpen)
        m_lineBox.linesDue = std::max(m_lineBox.linesDue, 1);
    if (const int place = placeHere(); place != NoPlace)
        expectBoxAt(place);
}

void Interpreter::expectBoxAt(int place) {
    m_box.place = place;
    m_box.depth = m_groups.size();
    enterText();
}

/// The text of a shape has rows and a label of its own.
void Interpreter::enterText() {
    m_around.rows = std::exchange(m_rows, {});
    m_around.label = std::exchange(m_label, {});
}

void Interpreter::leaveText() {
    m_rows = std::exchange(m_around.rows, {});
    m_label = std::exchange(m_around.label, {});
}

/// Which of the things that the shape shows the group is whose word has come.
int Interpreter::placeHere() const {
    if (m_state.box == NothingKept || m_box.depth > 0)
        return NoPlace;
    const qsizetype here = m_tokenizer.position();
    const auto found = std::lower_bound(m_box.places.begin(), m_box.places.end(), here);
    return found == m_box.places.end() || *found != here ? NoPlace
                                                         : int(found - m_box.places.begin());
}

/// Whether the text whose word has come is one of those that show nothing, and are kept with what
/// the shape shows.
bool Interpreter::isEmptyText() const {
    return isInFrame() && (m_state.frame != NothingKept || placeHere() == NoPlace);
}

/// Whether what comes is none of the text, but of the frame of a shape, unless it has a place
/// there.
bool Interpreter::isInFrame() const {
    return m_state.frame != NothingKept || (m_state.box != NothingKept && m_box.depth == 0);
}

/// A picture beside the texts of a shape is a paragraph of its own, of no shape and look.
void Interpreter::beginPictureOfBox() {
    m_box.aroundPicture = m_state;
    plainCharacters();
    m_state.paragraph = {};
    m_state.keptOfParagraph = 0;
    m_state.inTable = false;
    m_state.listOverride = NoList;
    expectBoxAt(m_box.picturePlace);
}

void Interpreter::endPictureOfBox() {
    m_box.picturePlace = NoPlace;
    m_box.hasParagraph |= !m_inParagraph; // the picture could not be shown
    endBox();
    m_state = m_box.aroundPicture;
}

/// The text of a box has paragraphs of its own: that of the document which the box stands in is
/// interrupted, or comes behind it.
void Interpreter::beginBox() {
    const bool textAhead = m_inParagraph || !m_cellsEnded.empty();
    m_box.isBehindText = textAhead || m_box.hasEnded;
    if (textAhead) {
        // In the shape that it has ahead of that of the box.
        GroupState& around = m_groups[m_box.shapeDepth - 1];
        m_box.begins = true;
        std::swap(m_state, around);
        std::swap(m_label, m_around.label);
        paragraphEnd();
        std::swap(m_label, m_around.label);
        std::swap(m_state, around);
        m_box.begins = false;
    } else {
        m_box.anchorsAhead = std::exchange(m_anchorsAtStart, {});
        m_box.pageBreakAhead = std::exchange(m_pageBreak, false);
    }
    m_box.hasEnded = false;
    m_box.isOpen = true;
    m_box.last = m_state.box;
    m_box.hasParagraph = false;
}

void Interpreter::endBox() {
    if (m_box.isOpen && (m_inParagraph || !m_cellsEnded.empty() || !m_box.hasParagraph))
        paragraphEnd();
    if (m_box.isOpen && m_rows.endsWithItem)
        m_sink.rowStaysOpen();
    m_box.depth = 0;
    leaveText();
    if (!std::exchange(m_box.isOpen, false))
        return;
    m_rows.leave();
    m_rows.endsWithItem = false; // what comes is behind the box
    m_box.hasEnded = m_box.isBehindText;
    m_anchorsAtStart.prepend(std::exchange(m_box.anchorsAhead, {}));
    m_pageBreak |= std::exchange(m_box.pageBreakAhead, false);
}

/// A shape whose box brought no text is kept at its place.
void Interpreter::shapeEnds() {
    if (m_state.ownBox == m_box.last)
        return;
    const QString kept = m_names.keptAt(m_state.ownBox);
    anchor(withoutPlaces(kept.sliced(kept.indexOf(NumberEnd) + 1)));
}

/// Whether a paragraph ends with nothing behind the box that stands in it: what stands ahead of the
/// box is all of it.
bool Interpreter::endsBehindBox() {
    const bool nothingBehind = !m_inParagraph && m_cellsEnded.empty() && m_anchorsAtStart.isEmpty();
    return nothingBehind && std::exchange(m_box.hasEnded, false);
}

void Interpreter::shapeBesideBox() {
    if (m_box.isOpen) {
        m_shaped.box = m_state.box;
        m_shaped.boxPlace = m_box.place;
        m_shaped.boxAhead = !m_box.isBehindText;
        return;
    }
    m_shaped.goesOn = true;
    m_shaped.pageBreakBefore = false;
    m_shaped.pageWord = PageWord::OfParagraph;
    m_shaped.list = {};
    m_shaped.mark = NothingKept;
}

} // namespace orvalis::rtf
