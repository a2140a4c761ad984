// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_text.h"
#include "rtf/reading/interpreter.h"
#include "rtf/writing/look_words.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

void Interpreter::anchor(const QString& kept) {
    if (kept.isEmpty())
        return;
    textComes();
    if (m_lineBox.depth > 0) {
        beginLineBox();
        flushText();
        m_lineBox.pieces.push_back({{}, {}, kept});
        return;
    }
    // It may stand in the next cell, or between the last one and the end of the row.
    if (!m_cellsEnded.empty()) {
        m_anchorsBehindCell.push_back({kept, {}});
        return;
    }
    if (!m_inParagraph) {
        m_anchorsAtStart += kept;
        return;
    }
    flushText();
    m_sink.anchor(kept);
}

/// The word that stands for the number of a note, a page or a date.
void Interpreter::anchorMark(const QString& word) {
    dissolveLineBox(); // for how it looks depends on what is ahead of it
    if (m_cellsEnded.empty())
        anchor(lookOfMark() + u'\\' + word + u'}');
    else
        m_anchorsBehindCell.push_back({word, m_state.chars, m_state.tellsPlain});
}

/// What they stand behind is known by now.
void Interpreter::anchorBehindCells() {
    for (const AnchorBehindCell& waiting : std::exchange(m_anchorsBehindCell, {})) {
        if (!waiting.look) {
            anchor(waiting.kept);
            continue;
        }
        const CharFormat around = std::exchange(m_state.chars, *waiting.look);
        const bool tellsPlain = std::exchange(m_state.tellsPlain, waiting.tellsPlain);
        anchorMark(waiting.kept);
        m_state.chars = around;
        m_state.tellsPlain = tellsPlain;
    }
}

/// What begins the group of a note's number: it looks like the text ahead of it, but raised, or
/// else in a way of its own, as it does where its group tells all of it.
QString Interpreter::lookOfMark() const {
    CharFormat look = m_textFormat;
    look.script = m_state.chars.script;
    look.stated = m_state.chars.stated;
    look.anchors = m_state.chars.anchors;
    look.cell = m_state.chars.cell;
    look.link = m_state.chars.link;
    look.field = m_state.chars.field;
    look.byNumber = m_state.chars.byNumber;
    if (m_text.isEmpty() || m_state.tellsPlain || look != m_state.chars)
        return u'{' + keptLook(told(m_state.chars), m_names);
    return m_state.chars.script == Script::Super ? u"{\\super"_s : u"{\\nosupersub"_s;
}

/// Text that a tracked change has taken out stays where it was, in the look that it had.
/// \returns whether the rest of the group is that, and has been kept.
bool Interpreter::keepDeleted() {
    // The look ahead reads all of the group, so those inside are not looked into again.
    return !std::exchange(m_state.inDeleted, true) && shows() && !m_groups.empty() &&
           keepUnseen("deleted", UnseenAs::Deleted, true);
}

/// \param word of the group, behind which one stands.
/// \returns whether the rest of the group does not show, and has been kept.
bool Interpreter::keepUnseen(QByteArrayView word, UnseenAs as, bool isUnseen) {
    const QByteArrayView content = m_tokenizer.groupAhead();
    if (!holdsUnseenAlone(content, as, isUnseen))
        return false;
    headEnds(); // for it tells how text looks
    const FileTables tables = fileTables(m_fonts.usual());
    GroupKeeper keeper(content, tables);
    keeper.beginIn(*m_state.page, m_state.symbols);
    const QString group = keeper.kept("{\\", word, m_keptLeft);
    if (group.isEmpty())
        return false;
    // The copy leaves out some words.
    const qsizetype head = QByteArrayView("{\\").size() + word.size();
    const QByteArray copy = keptWithoutPlaces(group);
    if (!holdsUnseenAlone(QByteArrayView(copy).sliced(head).chopped(1), as, isUnseen))
        return false;
    m_keptLeft -= group.size();
    m_tokenizer.skipToGroupEnd();
    anchor(u'{' + keptLook(told(m_state.chars), m_names) + group + u'}');
    return true;
}

} // namespace orvalis::rtf
