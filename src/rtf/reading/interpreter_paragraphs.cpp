// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/label_text.h"
#include "rtf/formats/list_formats.h"
#include "rtf/kept/kept_row.h"
#include "rtf/reading/interpreter.h"
#include "rtf/writing/look_words.h"

namespace orvalis::rtf {

void Interpreter::paragraphEnd() {
    if (m_lineBox.depth > 0) {
        ++m_lineBox.linesDue;
        return;
    }
    textComes();
    if (endsBehindBox()) {
        m_rowEnds = false;
        return;
    }
    cellTabs(m_cellsEnded.size());
    flushText();
    const ParagraphFormat& paragraph = shapedParagraph();
    tellOpenRow(paragraph);
    m_sink.paragraphEnd(paragraph, told(m_state.chars));
    m_rows.isEntered = paragraph.row != NothingKept && !m_rowEnds;
    m_rows.isOpened = m_rows.isEntered && isOpenRow(m_names.keptAt(paragraph.row));
    if (!m_rows.isEntered)
        m_rows.cellsOfRow = 0;
    m_rowEnds = false;
    m_cellsOfLine = 0;
    m_box.hasEnded = false;
    m_box.hasParagraph = true;
    m_inParagraph = false;
    m_pageBreak = false;
    m_sectionBegins = false;
    m_anchorsAtStart.clear();
    m_label = {};
    askForRoom();
}

/// An item of a list that ended no cell is none of a row.
void Interpreter::tellOpenRow(const ParagraphFormat& next) {
    const bool isInRow = next.row != NothingKept;
    if (m_rows.endsWithItem && (!isInRow || next.rowBegins))
        m_sink.rowStaysOpen();
    m_rows.endsWithItem = isInRow && !m_rowEnds && next.list.hasTables();
}

void Interpreter::pageEnd() {
    dissolveLineBox();
    textComes();
    const bool between = m_inParagraph || std::exchange(m_box.hasEnded, false);
    if (m_inParagraph)
        paragraphEnd();
    if (!m_pageBreak)
        m_pageWord = between && !m_rows.isEntered ? PageWord::Between : PageWord::InFront;
    m_pageBreak = true;
}

/// Many programs show the label of a list item in the look of its paragraph's mark, and the mark
/// may be what a tracked change has brought in.
int Interpreter::lookOfParagraphMark(bool tracked) {
    if (m_keptLeft <= 0)
        return NothingKept;
    CharFormat mark = m_state.chars;
    mark.link = m_textFormat.link;
    mark.field = m_textFormat.field;
    mark.cell = m_textFormat.cell;
    mark.script = m_textFormat.script;
    mark.stated = m_textFormat.stated;
    mark.byNumber = m_textFormat.byNumber;
    // The group that tells of a change in the text ends ahead of the mark.
    CharFormat text = m_textFormat;
    if (m_tracked.has(text.kept))
        text.kept = mark.kept;
    if (mark == text && !tracked)
        return NothingKept;
    mark.script = Script::Normal;
    mark.stated = m_state.chars.stated;
    const QString look = keptLook(told(mark), m_names);
    m_keptLeft -= look.size();
    return m_names.kept(look);
}

/// A number that the label beside it shows too begins anew.
void Interpreter::showStart(ListLabel& list) const {
    list.showsStart |= list.source == ListSource::Numbering && !m_label.text.isEmpty() &&
                       m_label.text == labelText(list, list.start).trimmed();
}

const ParagraphFormat& Interpreter::shapedParagraph() {
    const bool ofRow = (m_rowEnds || m_state.inTable) && row() != NothingKept;
    const bool besideBox = m_box.isOpen || m_box.hasEnded;
    const bool tracked = !ofRow && m_tracked.has(m_state.chars.kept);
    const bool toldLate = !ofRow && m_inParagraph && m_state.paragraph.after != m_afterAhead;
    if (!ofRow && m_state.listOverride == NoList && m_label.text.isEmpty() && !m_pageBreak &&
        !m_sectionBegins && m_anchorsAtStart.isEmpty() && !besideBox && !toldLate && !tracked) {
        m_lastListKind = m_state.paragraph.list.kind;
        return m_state.paragraph;
    }
    m_shaped = m_state.paragraph;
    if (toldLate) {
        m_shaped.afterAhead = m_afterAhead;
        m_shaped.stated = (m_shaped.stated & ~stated::After) | m_afterSaidAhead;
    }
    if (m_pageBreak) {
        m_shaped.pageBreakBefore = true;
        m_shaped.pageWord = m_pageWord;
    }
    if (ofRow) {
        m_shaped.row = rowOfParagraph();
        m_shaped.nestedRow = m_nestedRow;
        m_shaped.rowBegins = !m_rows.isEntered;
    }
    m_shaped.anchors = m_names.kept(m_anchorsAtStart);
    if (m_sectionBegins)
        m_shaped.section = m_names.kept(sectionBreak());
    const bool numbered = m_shaped.list.kind != ListKind::None;
    const auto known = m_lists.label(m_state.listOverride, m_state.listLevel, numbered);
    ListLabel& list = m_shaped.list;
    if (m_state.listOverride != NoList && known)
        list = *known;
    else if (list.kind == ListKind::None && !m_label.text.isEmpty() &&
             m_label.list.kind != ListKind::None)
        list = m_label.list;
    else if (list.kind == ListKind::None && !ofRow) // cells end without a label
        list = labelFromText(m_label.text, m_label.symbols, m_lastListKind);
    else if (m_state.listOverride != NoList && ofRow)
        list = {};
    else if (m_state.listOverride != NoList) {
        // Which goes before the other, though nobody knows it; the text tells of no side.
        list.source = ListSource::Text;
        list.side = LabelSide::Left;
    }
    showStart(list);
    const bool isItem = list.kind != ListKind::None && m_inParagraph;
    if ((isItem || tracked) && !m_box.begins)
        m_shaped.mark = lookOfParagraphMark(tracked);
    if (besideBox)
        shapeBesideBox();
    m_lastListKind = m_shaped.list.kind;
    return m_shaped;
}

} // namespace orvalis::rtf
