// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_row.h"
#include "rtf/writing/body_writer.h"
#include "rtf/writing/kept_writer.h"

namespace orvalis::rtf {

void BodyWriter::beginRow(int row, const ParagraphFormat& first) {
    goTo(first);
    m_rowEnds = false;
    m_anyRow = true;
    if (first.pageBreakBefore && first.pageWord != PageWord::OfParagraph)
        m_out.structure("\\pard\\page");
    m_out.structure(kept(wordsOfRow(names().keptAt(row))));
    m_paragraphs.forget();
}

void BodyWriter::beginCell(int shape, int anchors) {
    endLastParagraph();
    m_mark = NothingKept;
    m_afterBehind = NoLength;
    writeKept(m_out, m_tables, names().keptAt(shape));
    writeAnchors(anchors);
    m_paragraphs.forget();
}

void BodyWriter::endCell(const CharFormat& look) {
    m_boxIsEmpty = false;
    closeTracked();
    m_last = look;
    change(lookOfEnd(look));
    const bool nested = nestingOfCell(names().keptAt(look.cell)) != 0;
    m_out.structure(nested ? "\\nestcell\r\n" : "\\cell\r\n");
}

void BodyWriter::endNestedRow(int row) {
    m_paragraphEnds = false;
    m_mark = NothingKept;
    m_out.structure("\\nestcell");
    m_out.structure(kept(groupOfNestedRow(names().keptAt(row))).trimmed());
    m_out.structure("{\\nonesttables\\par}\r\n");
    m_paragraphs.forget();
}

/// What ends a cell ahead of all rows is told as that; behind one it would be of a row.
bool BodyWriter::cellsEnd(QStringView text, const CharFormat& format) {
    const bool inText =
        m_box == NothingKept && format.link == NoName && format.field == NothingKept;
    if (format.cell == NothingKept || m_anyRow || !inText ||
        names().keptAt(format.cell) != BareCell || text.count(u'\t') != text.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i)
        m_out.word("\\cell");
    return true;
}

void BodyWriter::endRow() {
    m_rowEnds = true;
    m_paragraphEnds = false;
    m_mark = NothingKept;
    m_out.structure("\\cell\\row\r\n");
    m_paragraphs.forget();
}

} // namespace orvalis::rtf
