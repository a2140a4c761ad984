// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formula_text.h"
#include "rtf/interpreter.h"
#include "rtf/kept_group.h"
#include "rtf/kept_text.h"
#include "rtf/shape_scan.h"

#include <utility>

namespace orvalis::rtf {

/// The frame of a shape goes with the picture or the text that the shape shows; of one that shows
/// neither the whole is kept at its place. Several in one are shown without what is around them.
void Interpreter::keepShape(const Token& token) {
    constexpr int MostShapes = 4096; // each makes a format of its own
    // The look ahead reads all that is in a shape, so those inside are not looked into again.
    const bool isFormula = token.word->value != 0;
    const bool inShape = m_state.inShape;
    bool& looked = isFormula ? m_state.inFormula : m_state.inShape;
    if (std::exchange(looked, true) || m_shapes >= MostShapes || !shows())
        return;
    ++m_shapes;
    const ShapeScan scan = scanShape(m_tokenizer.groupAhead());
    const bool isPicture = scan.shows == ShapeScan::Shows::Picture;
    if (isFormula && !isPicture) {
        keepFormula();
        return;
    }
    if (isFormula && inShape)
        return;
    // A line of the document holds all cells of a row, and a field ends with its paragraph.
    const bool asText =
        m_state.inTable || m_state.chars.link != NoName || m_state.chars.field != NothingKept;
    if (scan.shows == ShapeScan::Shows::More || (scan.shows == ShapeScan::Shows::Text && asText))
        return;
    const FileTables tables{m_fonts, m_colors, m_names, *m_documentPage, m_defaultFont};
    const QString kept = GroupKeeper(scan.frame, tables).kept("{\\", token.bytes, m_keptLeft);
    m_keptLeft -= kept.size();
    if (kept.isEmpty())
        return;
    if (isPicture) {
        m_state.frame = m_names.kept(kept);
    } else if (scan.shows == ShapeScan::Shows::Text) {
        m_state.box = m_names.kept(QString::number(m_shapes) + NumberEnd + kept);
    } else {
        skipGroup();
        anchor(kept);
    }
}

/// A formula without a picture shows the text of its parts in one line, and is kept as long as that
/// stays.
void Interpreter::keepFormula() {
    if (m_state.chars.field != NothingKept)
        return;
    const FileTables tables{m_fonts, m_colors, m_names, *m_documentPage, m_defaultFont};
    const QString kept =
        GroupKeeper(m_tokenizer.groupAhead(), tables).kept("{\\", "mmath", m_keptLeft);
    m_keptLeft -= kept.size();
    if (kept.isEmpty())
        return;
    skipGroup();
    const QString text = formulaText(keptWithoutPlaces(kept));
    if (text.isEmpty()) {
        anchor(kept);
        return;
    }
    m_state.chars.field =
        m_names.kept(QString::number(m_shapes) + NumberEnd + kept + NumberEnd + text);
    append(text);
    m_state.chars.field = NothingKept;
}

/// The text of a box has paragraphs of its own: that of the document which the box stands in is
/// interrupted, or comes behind it.
void Interpreter::beginBox() {
    if (m_state.box == NothingKept || m_boxDepth > 0)
        return;
    m_boxBehind = m_inParagraph || m_boxEnded;
    if (m_inParagraph) {
        paragraphEnd();
    } else if (!m_boxBehind) {
        m_anchorsAround = std::exchange(m_anchorsAtStart, {});
        m_pageBreakAround = std::exchange(m_pageBreak, false);
    }
    m_boxEnded = false;
    m_boxDepth = m_groups.size();
    m_boxHasParagraph = false;
}

void Interpreter::endBox() {
    if (m_inParagraph || !m_boxHasParagraph)
        paragraphEnd();
    m_boxDepth = 0;
    m_boxEnded = m_boxBehind;
    m_anchorsAtStart.prepend(std::exchange(m_anchorsAround, {}));
    m_pageBreak |= std::exchange(m_pageBreakAround, false);
}

/// Whether a paragraph ends with nothing behind the box that stands in it: what stands ahead of the
/// box is all of it.
bool Interpreter::endsBehindBox() {
    const bool nothingBehind = !m_inParagraph && m_cellsEnded.empty() && m_anchorsAtStart.isEmpty();
    return nothingBehind && std::exchange(m_boxEnded, false);
}

void Interpreter::shapeBesideBox() {
    if (m_boxDepth > 0) {
        m_shaped.box = m_state.box;
        m_shaped.boxAhead = !m_boxBehind;
        return;
    }
    m_shaped.goesOn = true;
    m_shaped.pageBreakBefore = false;
    m_shaped.pageWord = PageWord::OfParagraph;
    m_shaped.list = {};
    m_shaped.mark = NothingKept;
}

} // namespace orvalis::rtf
