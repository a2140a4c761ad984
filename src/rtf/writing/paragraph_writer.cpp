// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/paragraph_writer.h"

#include "rtf/formats/list_formats.h"
#include "rtf/formats/stated.h"
#include "rtf/words/rtf_output.h"
#include "rtf/writing/kept_writer.h"
#include "rtf/writing/writer_tables.h"

namespace orvalis::rtf {

namespace {

constexpr const char* BulletByte = "\\'B7";

const char* kindWord(ListKind kind) {
    switch (kind) {
    case ListKind::LowerLetter:
        return "\\pnlcltr";
    case ListKind::UpperLetter:
        return "\\pnucltr";
    case ListKind::LowerRoman:
        return "\\pnlcrm";
    case ListKind::UpperRoman:
        return "\\pnucrm";
    default:
        return "\\pndec";
    }
}

const char* leaderWord(TabLeader leader) {
    switch (leader) {
    case TabLeader::MiddleDots:
        return "\\tlmdot";
    case TabLeader::Hyphens:
        return "\\tlhyph";
    case TabLeader::Underline:
        return "\\tlul";
    case TabLeader::ThickLine:
        return "\\tlth";
    case TabLeader::Equals:
        return "\\tleq";
    case TabLeader::Dots:
    case TabLeader::None:
        break;
    }
    return "\\tldot";
}

const char* alignmentWord(Alignment alignment) {
    switch (alignment) {
    case Alignment::Right:
        return "\\qr";
    case Alignment::Center:
        return "\\qc";
    case Alignment::Justify:
        return "\\qj";
    case Alignment::Left:
        break;
    }
    return "\\ql";
}

const char* sideWord(LabelSide side) {
    return side == LabelSide::Center ? "\\pnqc" : "\\pnqr";
}

} // namespace

void ParagraphWriter::begin(const ParagraphFormat& paragraph, int number) {
    // An inherited \pn numbers on by itself, so it is repeated only where the number does not.
    const ListKind kind = paragraph.list.kind;
    const ListSource source = paragraph.list.source;
    const bool counts = kind != ListKind::None && kind != ListKind::Bullet &&
                        source != ListSource::Tables && source != ListSource::Text;
    // The shape says nothing of the mark's look, of how a page is told to begin, or of what is
    // ahead.
    m_last.mark = paragraph.mark;
    m_last.goesOn = paragraph.goesOn;
    if (m_last.pageWord != PageWord::OfParagraph && paragraph.pageWord != PageWord::OfParagraph)
        m_last.pageWord = paragraph.pageWord;
    const bool goesOn = m_any && paragraph == m_last && (!counts || number == m_lastNumber + 1);
    m_lastNumber = number;
    ListLabel shown = paragraph.list;
    shown.start = number;
    if (!goesOn) {
        m_any = true;
        m_last = paragraph;
        m_out.word("\\pard");
    }
    if (kind != ListKind::None)
        label(shown);
    if (goesOn)
        return;
    if (kind != ListKind::None)
        list(paragraph, shown);
    shape(paragraph);
}

/// As the file told of it. Of one that the window made, some readers know the one way to tell and
/// some the other; only the list tables keep lists of one look apart.
void ParagraphWriter::list(const ParagraphFormat& paragraph, const ListLabel& shown) {
    const ListSource source = paragraph.list.source;
    if (source != ListSource::Tables && source != ListSource::Text)
        numbering(shown);
    if (paragraph.list.isInTables()) {
        m_out.word("\\ls", m_tables.list(paragraph));
        m_out.word("\\ilvl", paragraph.list.hasTables() ? paragraph.list.level : 0);
    }
}

void ParagraphWriter::label(const ListLabel& label) {
    m_out.word(label.source == ListSource::Tables ? "{\\listtext" : "{\\pntext");
    if (label.kind == ListKind::Bullet && label.prefix.isEmpty()) {
        m_out.word("\\f", m_tables.symbolFont());
        m_out.structure(BulletByte);
    } else {
        m_out.text(labelText(label, label.start));
    }
    m_out.structure("\\tab}");
}

void ParagraphWriter::numbering(const ListLabel& label) {
    m_out.word("{\\*\\pn");
    if (label.kind == ListKind::Bullet) {
        m_out.word("\\pnlvlblt");
        side(label);
        if (label.prefix.isEmpty()) {
            m_out.word("\\pnf", m_tables.symbolFont());
            m_out.structure("\\pnindent0{\\pntxtb");
            m_out.structure(BulletByte);
            m_out.structure("}}");
            return;
        }
        m_out.word("\\pnindent0");
        numberingText("{\\pntxtb", label.prefix);
        m_out.structure("}");
        return;
    }
    m_out.word("\\pnlvlbody\\pnindent0");
    m_out.word("\\pnstart", label.start);
    m_out.word(kindWord(label.kind));
    side(label);
    numberingText("{\\pntxtb", label.prefix);
    numberingText("{\\pntxta", label.suffix);
    m_out.structure("}");
}

void ParagraphWriter::side(const ListLabel& label) {
    if (label.side != LabelSide::Left)
        m_out.word(sideWord(label.side));
}

void ParagraphWriter::numberingText(QByteArrayView group, const QString& text) {
    if (text.isEmpty())
        return;
    m_out.word(group);
    m_out.text(text);
    m_out.structure("}");
}

void ParagraphWriter::shape(const ParagraphFormat& paragraph) {
    if (paragraph.inTable)
        m_out.word("\\intbl");
    if (paragraph.inTable && paragraph.nesting != 0)
        m_out.word("\\itap", paragraph.nesting);
    writeKept(m_out, m_tables, m_tables.names().keptAt(paragraph.kept));
    geometry(paragraph);
}

void ParagraphWriter::geometry(const ParagraphFormat& paragraph) {
    const auto isStated = [&](int bit) { return (paragraph.stated & bit) != 0; };
    const auto length = [&](const char* name, int number, int bit) {
        if (isStated(bit))
            m_out.word(name, number);
    };
    if (isStated(stated::Direction))
        m_out.word(paragraph.rightToLeft ? "\\rtlpar" : "\\ltrpar");
    if (paragraph.pageBreakBefore && paragraph.pageWord == PageWord::OfParagraph)
        m_out.word("\\pagebb");
    else if (isStated(stated::PageBreak))
        m_out.word("\\pagebb", 0);
    length("\\fi", paragraph.first, stated::First);
    length("\\li", paragraph.left, stated::Left);
    length("\\ri", paragraph.right, stated::Right);
    length("\\sb", paragraph.before, stated::Before);
    const bool late = paragraph.afterAhead != NoLength;
    length("\\sa", late ? paragraph.afterAhead : paragraph.after, stated::After);
    if (isStated(stated::LineSpacing)) {
        m_out.word("\\sl", paragraph.lineSpacing);
        m_out.word("\\slmult", paragraph.lineMultiple ? 1 : 0);
    }
    if (isStated(stated::Alignment))
        m_out.word(alignmentWord(paragraph.alignment));
    tabs(paragraph.tabs);
}

void ParagraphWriter::tabs(const QList<TabStop>& tabs) {
    for (const TabStop& tab : tabs) {
        switch (tab.type) {
        case QTextOption::LeftTab:
            break;
        case QTextOption::RightTab:
            m_out.word("\\tqr");
            break;
        case QTextOption::CenterTab:
            m_out.word("\\tqc");
            break;
        case QTextOption::DelimiterTab:
            m_out.word("\\tqdec");
            break;
        }
        if (tab.leader != TabLeader::None)
            m_out.word(leaderWord(tab.leader));
        m_out.word("\\tx", tab.position);
    }
}

} // namespace orvalis::rtf
