// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/hyperlink.h"
#include "rtf/kept/kept_shape.h"
#include "rtf/kept/kept_text.h"
#include "rtf/writing/body_writer.h"
#include "rtf/writing/kept_writer.h"

namespace orvalis::rtf {

/// The braces of a link or a field bring back what held before it.
void BodyWriter::closeGroup() {
    m_out.structure("}}");
    const Look& before = m_lookBefore[m_openGroups - 1];
    --m_openGroups;
    m_format = before.format;
    m_stated = before.stated;
    m_symbols = m_tables.symbolFontOf(m_format.family);
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
    const QString instruction = names().keptAt(field);
    m_out.structure("{\\field");
    writeKept(m_out, m_tables, QStringView(instruction).sliced(instruction.indexOf(NumberEnd) + 1));
    m_out.word("{\\fldrslt");
    m_format.field = field;
}

std::optional<QString> BodyWriter::shownBy(int field) {
    return textShownBy(names().keptAt(field));
}

bool BodyWriter::showsShape(int field) {
    const QString kept = names().keptAt(field);
    return QStringView(kept)
        .sliced(kept.indexOf(NumberEnd) + 1)
        .startsWith(QLatin1StringView(LineShapeHead));
}

void BodyWriter::shown(const CharFormat& format) {
    const QString kept = names().keptAt(format.field);
    const qsizetype start = kept.indexOf(NumberEnd) + 1;
    const QStringView group =
        QStringView(kept).sliced(start, kept.indexOf(NumberEnd, start) - start);
    CharFormat own = format;
    own.field = NothingKept;
    if (showsShape(format.field)) { // which tells how it looks
        own = m_format;
        own.link = NoName;
        own.field = NothingKept;
    }
    m_paragraphIsEmpty = false;
    change(own);
    breakPage();
    const bool isInstruction = group.startsWith(QLatin1StringView(InstructionHead));
    if (isInstruction)
        m_out.structure("{\\field");
    writeKept(m_out, m_tables, group);
    if (isInstruction)
        m_out.structure("{\\fldrslt}}");
}

} // namespace orvalis::rtf
