// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_text.h"
#include "rtf/kept/shape_frame.h"
#include "rtf/reading/interpreter.h"
#include "rtf/reading/shape_scan.h"
#include "rtf/writing/look_words.h"

#include <algorithm>
#include <utility>

namespace orvalis::rtf {

void Interpreter::expectLineBox(const Token& token, const ShapeScan& scan) {
    headEnds(); // for it tells how text looks
    const FileTables tables = fileTables(m_fonts.usual());
    // Its text looks as what is around it, until it says otherwise.
    const QString look = keptLook(told(m_state.chars), m_names);
    const auto kept = [&](QByteArrayView content) {
        GroupKeeper keeper(content, tables);
        keeper.beginIn(*m_state.page, m_state.symbols);
        const QString group = keeper.kept("{\\", token.bytes, m_keptLeft);
        m_keptLeft -= group.size();
        return group.isEmpty() ? QString() : u'{' + look + inField(group) + u'}';
    };
    m_lineBox.content = m_tokenizer.groupAhead();
    m_lineBox.kept = kept(m_lineBox.content);
    if (m_lineBox.kept.isEmpty())
        return;
    // Where several texts are changed nobody could tell them apart.
    if (scan.places.size() == 1)
        m_lineBox.frame = kept(scan.frame);
    m_lineBox.word = token.bytes;
    m_lineBox.depth = m_groups.size();
    enterText();
}

/// What stands ahead of it is told by now.
void Interpreter::beginLineBox() {
    if (m_lineBox.isOpen)
        return;
    const size_t depth = std::exchange(m_lineBox.depth, 0);
    const int linesDue = std::exchange(m_lineBox.linesDue, 0);
    cellTabs(m_cellsEnded.size());
    flushText();
    m_lineBox.depth = depth;
    m_lineBox.linesDue = linesDue;
    m_lineBox.isOpen = true;
    m_lineBox.inParagraph = m_inParagraph;
}

void Interpreter::endLineBox() {
    const auto isByNumber = [](const LineBox::Piece& piece) { return piece.look.byNumber; };
    const bool hasLetters =
        m_textFormat.byNumber ||
        std::any_of(m_lineBox.pieces.begin(), m_lineBox.pieces.end(), isByNumber);
    if (m_lineBox.isOpen && hasLetters) { // which the copy does not tell
        dissolveLineBox();
        return;
    }
    flushText();
    const LineBox box = std::exchange(m_lineBox, {});
    leaveText();
    QString text;
    for (const LineBox::Piece& piece : box.pieces)
        text += piece.picture ? QString(QChar::ObjectReplacementCharacter) : piece.text;
    if (text.isEmpty()) {
        const QByteArray frame = scanShape(box.content).frame;
        const FileTables tables = fileTables(m_fonts.usual());
        anchor(
            inField(withoutPlaces(GroupKeeper(frame, tables).kept("{\\", box.word, m_keptLeft))));
        return;
    }
    m_keptLeft -= text.size();
    const int field =
        m_names.kept(QString::number(m_shapes) + NumberEnd + keptOf({box.kept, box.frame, text}));
    for (LineBox::Piece piece : box.pieces) {
        piece.look.field = field;
        piece.look.link = NoName;
        if (piece.picture)
            showPicture(*piece.picture, piece.look);
        else if (piece.anchor.isEmpty())
            m_sink.text(piece.text, piece.look);
    }
}

/// Something is in it that a run cannot show: it is text of the cell. The last of it still waits,
/// as all text does.
void Interpreter::dissolveLineBox() {
    if (m_lineBox.depth == 0)
        return;
    if (m_lineBox.isOpen && m_lineBox.linesDue > 0)
        prepareText();
    const LineBox box = std::exchange(m_lineBox, {});
    leaveText();
    bool inParagraph = box.inParagraph;
    for (const LineBox::Piece& piece : box.pieces) {
        if (!piece.anchor.isEmpty() && inParagraph)
            m_sink.anchor(piece.anchor);
        else if (!piece.anchor.isEmpty())
            m_anchorsAtStart += piece.anchor;
        else if (piece.picture)
            showPicture(*piece.picture, piece.look);
        else
            m_sink.text(piece.text, piece.look);
        inParagraph |= piece.anchor.isEmpty();
    }
}

} // namespace orvalis::rtf
