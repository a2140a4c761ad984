// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_text.h"
#include "rtf/reading/interpreter.h"
#include "rtf/words/rtf_output.h"
#include "rtf/writing/paragraph_writer.h"
#include "rtf/writing/writer_tables.h"

#include <algorithm>
#include <utility>

namespace orvalis::rtf {

namespace {

constexpr int MostCells = 64; // word processors know 63

/// Whether a group holds words alone, and none that shows anything or follows the end of its row.
bool onlyShapesRow(QByteArrayView group) {
    Tokenizer tokenizer(group);
    Token token;
    bool rowEnds = false;
    for (tokenizer.next(token); token.kind == TokenKind::Word && !rowEnds; tokenizer.next(token)) {
        const Action action = token.word ? token.word->action : Action::Version;
        rowEnds = action == Action::RowEnd;
        if (action == Action::Character || action == Action::Unicode ||
            (action >= Action::ParagraphEnd && action <= Action::CellEnd))
            return false;
    }
    return token.kind == TokenKind::End;
}

} // namespace

bool Interpreter::rowWord(const Token& token) {
    switch (token.word->action) {
    case Action::RowDefaults:
        if (!shows() || m_state.nested)
            return true;
        m_bodyBegun = true;
        m_rows.any = true;
        // What is shaped behind an empty paragraph is a row by itself.
        if (m_rows.isOpened && !m_inParagraph && m_cellsEnded.empty())
            m_rows.isEntered = m_rows.isOpened = false;
        m_rows.keptOfRow = m_rows.keptOfCell = 0;
        m_rows.cells.clear();
        m_rows.cellCount = 0;
        m_rows.isNew = true;
        m_state.border = nullptr;
        return true;
    case Action::CellRight:
        if (!shows() || m_state.nested || m_rows.cellCount >= MostCells)
            return true;
        ++m_rows.cellCount;
        m_rows.cells += m_names.keptAt(m_kept.name(m_rows.keptOfCell)) + QStringLiteral("\\cellx") +
                        QString::number(token.parameter);
        m_rows.keptOfCell = 0;
        m_rows.isNew = true;
        return true;
    case Action::InTable:
        m_state.inTable = true;
        return true;
    case Action::TableNesting:
        m_state.paragraph.nesting =
            token.parameter >= 2 && token.parameter <= MostNesting ? token.parameter : 0;
        return true;
    case Action::CellEnd:
        if (shows()) {
            dissolveLineBox();
            textComes();
            if (!m_anchorsBehindCell.empty())
                cellTabs(m_cellsEnded.size());
            m_cellsEnded.push_back(m_state.chars);
            ++m_cellsOfLine;
            const bool nested = token.word->value != 0;
            const int cell = m_cellsEnded.back().cell = cellShape(nested);
            if (endsCellOfRow(cell))
                ++(nested ? m_rows.cellsOfNested[size_t(m_state.paragraph.nesting)]
                          : m_rows.cellsOfRow);
        }
        return true;
    case Action::RowEnd:
        if (shows())
            rowEnd(token.word->value == 0);
        return true;
    default:
        return false;
    }
}

void Interpreter::keepOfRow(KeptLevel level, const KeptCall& call) {
    if (m_state.nested)
        return;
    int& set = level == KeptLevel::Row ? m_rows.keptOfRow : m_rows.keptOfCell;
    set = m_kept.with(set, call);
    m_rows.isNew = true;
}

/// What the file says of the row and its cells; NothingKept where it says nothing.
int Interpreter::row() {
    if (!std::exchange(m_rows.isNew, false))
        return m_rows.row;
    m_rows.row = NothingKept;
    if (m_rows.cellCount > 0 && m_keptLeft > 0) {
        const QString text = QStringLiteral("\\trowd") +
                             m_names.keptAt(m_kept.name(m_rows.keptOfRow)) + m_rows.cells;
        m_keptLeft -= text.size();
        m_rows.row = m_names.kept(text);
    }
    return m_rows.row;
}

/// The row with a number of cells that its words do not tell.
int Interpreter::unevenRow(int cells) {
    if (m_keptLeft <= 0 || m_rows.cellCount >= MostCells || cells > MostCells)
        return row();
    if (m_uneven.kept == NothingKept || m_uneven.row != row() || m_uneven.cells != cells) {
        const QString text = rtf::unevenRow(cells, m_names.keptAt(row()));
        m_keptLeft -= text.size();
        m_uneven = {row(), cells, m_names.kept(text)};
    }
    return m_uneven.kept;
}

/// The row that the paragraph is of which ends. A row may have more or fewer cells than it should.
/// In a table without text and cells, the paragraph may belong to no row at all.
int Interpreter::rowOfParagraph() {
    if (m_rowEnds)
        return m_rows.cellsOfRow == m_rows.cellCount ? row() : unevenRow(m_rows.cellsOfRow);
    const bool isEmpty = !m_inParagraph && m_anchorsAtStart.isEmpty() && m_nestedRow == NothingKept;
    return isEmpty ? unevenRow(0) : row();
}

/// What ends a cell ahead of all rows is none of one, and stays what it is.
int Interpreter::bareCell() {
    const bool inText = !m_state.inTable && !m_state.inShape && m_state.chars.link == NoName &&
                        m_state.chars.field == NothingKept;
    if (m_rows.any || !inText || m_keptLeft <= 0)
        return NothingKept;
    m_bareCell = m_names.kept(BareCell.toString());
    return m_bareCell;
}

/// How the paragraph is shaped that a cell ends with: a line of the document holds all cells of a
/// row, and has one shape.
int Interpreter::cellShape(bool nested) {
    if (nested && (!m_state.inTable || row() == NothingKept || m_state.paragraph.nesting == 0))
        return NothingKept;
    if (row() == NothingKept)
        return bareCell();
    ParagraphFormat shaped = m_state.paragraph;
    if (!nested)
        shaped.nesting = 0;
    const QString list = listInCell();
    shaped.kept = m_names.kept(m_names.keptAt(shaped.kept) + list);
    showStart(shaped.list);
    m_lastOfCell = shaped;
    shaped.stated = stated::by(shaped, stated::countedOfParagraphs(m_stylesKept, !list.isEmpty()));
    m_label = {};
    if (m_cellShape != NothingKept && m_shapeOfCell == shaped)
        return m_cellShape;
    RtfOutput shape;
    shape.word("\\pard\\intbl");
    if (nested)
        shape.word("\\itap", shaped.nesting);
    const QByteArray kept = m_names.keptAt(shaped.kept).toUtf8();
    if (!kept.isEmpty())
        shape.word(kept);
    WriterTables tables;
    ParagraphWriter(shape, tables).geometry(shaped);
    m_shapeOfCell = shaped;
    m_cellShape = m_names.kept(QString::fromUtf8(shape.bytes()));
    return m_cellShape;
}

/// The place of a cell's paragraph in a list, which is kept: a cell has no label to show.
QString Interpreter::listInCell() {
    const auto label = m_lists.label(m_state.listOverride, m_state.listLevel, false);
    if (m_state.listOverride == NoList || !label || !label->hasTables() || m_keptLeft <= 0)
        return {};
    const QString list = listOfCell(*label);
    m_keptLeft -= list.size();
    return list;
}

void Interpreter::cellTabs(size_t count) {
    const std::vector<CharFormat> looks = std::exchange(m_cellsEnded, {});
    const CharFormat around = m_state.chars;
    // A picture may follow from within what tells of its shape.
    const Destination destination = std::exchange(m_state.destination, Destination::Body);
    for (size_t i = 0; i < std::min(count, looks.size()); ++i) {
        m_state.chars = looks[i];
        append(u"\t");
    }
    m_state.chars = around;
    m_state.destination = destination;
    if (count == looks.size())
        anchorBehindCells();
}

void Interpreter::rowEnd(bool outermost) {
    dissolveLineBox();
    // A box has no row ahead of its text.
    if (m_box.depth > 0 && !m_box.isOpen)
        return;
    const bool anyCell = !m_cellsEnded.empty();
    const bool complete = anyCell && row() != NothingKept &&
                          endsCellOfRow(m_cellsEnded.back().cell) &&
                          (m_lastOfCell.nesting == 0) == outermost;
    m_nestedRow = complete && !outermost ? endedNestedRow() : NothingKept;
    const bool kept = complete && (outermost || m_nestedRow != NothingKept);
    if (anyCell)
        cellTabs(m_cellsEnded.size() - 1);
    anchorBehindCells();
    if (anyCell || m_inParagraph)
        rowParagraphEnd(kept, outermost);
    m_nestedRow = NothingKept;
    if (outermost && (anyCell || !m_rows.isOpened))
        m_rows.leave();
}

void Interpreter::rowParagraphEnd(bool kept, bool outermost) {
    m_rowEnds = kept && outermost;
    // What stands between the last cell and the row's end shapes no text.
    const ParagraphFormat behind = m_state.paragraph;
    const int list = m_state.listOverride;
    const bool inTable = m_state.inTable;
    if (kept) {
        m_state.inTable = true;
        m_state.paragraph = m_lastOfCell;
        if (m_cellsOfLine > 1) // whose label would stand ahead of all of them
            m_state.paragraph.list = {};
        m_state.listOverride = NoList;
    }
    paragraphEnd();
    m_state.paragraph = behind;
    m_state.listOverride = list;
    m_state.inTable = inTable;
}

/// What shapes a row of a table in a cell stands in a group of its own, in which the row ends.
void Interpreter::keepNestedRow() {
    if (std::exchange(m_state.nested, true) || !shows())
        return;
    const QByteArrayView content = m_tokenizer.groupAhead();
    m_nestedGroup.clear();
    if (!onlyShapesRow(content))
        return;
    const FileTables tables = fileTables(m_fonts.usual());
    m_nestedGroup = GroupKeeper(content, tables).kept("{\\*\\", "nesttableprops", m_keptLeft);
    m_keptLeft -= m_nestedGroup.size();
}

int Interpreter::endedNestedRow() {
    constexpr int MostNestedRows = 4096; // each makes a format of its own
    const QString group = std::exchange(m_nestedGroup, {});
    const int cells = std::exchange(m_rows.cellsOfNested[size_t(m_lastOfCell.nesting)], 0);
    if (!m_state.nested || group.isEmpty() || m_nestedRows >= MostNestedRows)
        return NothingKept;
    return m_names.kept(nestedRow(++m_nestedRows, cells, group));
}

} // namespace orvalis::rtf
