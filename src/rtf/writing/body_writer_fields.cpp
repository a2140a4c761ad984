// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/hyperlink.h"
#include "rtf/kept/kept_shape.h"
#include "rtf/kept/kept_text.h"
#include "rtf/writing/body_writer.h"
#include "rtf/writing/kept_writer.h"

namespace orvalis::rtf {

/// What closes a link or a field brings back what held before it.
void BodyWriter::closeGroup() {
    if (const ShapeFrame frame = lineFrame(m_format.field); frame.has(0))
        writeKept(m_out, m_tables, frame.places.front().behind);
    else
        m_out.structure(fieldGroups(m_tables.names().keptAt(m_format.field)).closing);
    const Look& before = m_lookBefore[m_openGroups - 1];
    --m_openGroups;
    m_format = before.format;
    m_stated = before.stated;
    m_symbols = m_tables.symbolFontOf(m_format.family);
}

/// The frame of a shape in a line, whose text is written anew; one without a place for other
/// fields.
ShapeFrame BodyWriter::lineFrame(int field) const {
    if (field == NothingKept)
        return {};
    const QString kept = m_tables.names().keptAt(field);
    const std::optional<KeptShown> shown = shownBy(kept);
    return shown ? shapeFrame(shown->frame) : ShapeFrame();
}

/// A field with a page's end in it would be none.
void BodyWriter::openGroup() {
    breakPage();
    m_lookBefore[m_openGroups++] = {m_format, m_stated};
}

void BodyWriter::changeLink(int link) {
    if (link == m_format.link)
        return;
    changeField(NothingKept);
    if (m_format.link != NoName)
        closeGroup();
    if (link == NoName)
        return;
    openGroup();
    m_out.structure("{\\field{\\*\\fldinst{");
    m_out.text(hyperlinkInstruction(m_tables.names().linkAt(link)));
    m_out.structure("}}");
    m_out.word("{\\fldrslt");
    m_format.link = link;
}

void BodyWriter::changeField(int field) {
    if (field == m_format.field)
        return;
    if (m_format.field != NothingKept)
        closeGroup();
    if (field == NothingKept)
        return;
    openGroup();
    if (const ShapeFrame frame = lineFrame(field); frame.has(0)) {
        writeKept(m_out, m_tables, frame.ahead);
        m_out.word("\\pard");
        plain();
        m_symbols = m_tables.symbolFontOf(m_format.family);
        m_format.field = field;
        return;
    }
    writeKept(m_out, m_tables, fieldGroups(names().keptAt(field)).opening);
    m_format.field = field;
}

void BodyWriter::shown(const CharFormat& format) {
    const QString kept = names().keptAt(format.field);
    const QStringView group = shownBy(kept)->group;
    m_paragraphIsEmpty = false;
    m_last = format;
    if (isShapeInLine(group)) { // which tells how it looks
        closeTracked();
        changeLink(NoName);
        changeField(NothingKept);
    } else {
        CharFormat own = format;
        own.field = NothingKept;
        goToTracked(own);
        change(own);
    }
    breakPage();
    const bool isInstruction = isOfField(group);
    if (isInstruction)
        m_out.structure("{\\field");
    writeKept(m_out, m_tables, group);
    if (isInstruction)
        m_out.structure("{\\fldrslt}}");
}

/// Behind the text of a shape that is written anew.
void BodyWriter::endShape() {
    closeTracked();
    changeField(NothingKept);
}

/// What is kept of a shape spells signs by their letters.
bool BodyWriter::standsInShape(const CharFormat& format) {
    return format.link == NoName && format.cell == NothingKept &&
           m_tables.symbolFontOf(format.family) == SymbolFont::None &&
           !m_tables.wantsNumbers(format.family);
}

} // namespace orvalis::rtf
