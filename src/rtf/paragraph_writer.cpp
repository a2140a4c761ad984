// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/paragraph_writer.h"

#include "rtf/kept_text.h"
#include "rtf/list_number.h"
#include "rtf/rtf_output.h"
#include "rtf/writer_tables.h"

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

const char* sideWord(LabelSide side) {
    return side == LabelSide::Center ? "\\pnqc" : "\\pnqr";
}

} // namespace

void ParagraphWriter::begin(const ParagraphFormat& paragraph, int number) {
    // An inherited \pn numbers on by itself, so it is repeated only where the number does not.
    const ListKind kind = paragraph.list.kind;
    const bool goesOn =
        m_any && paragraph == m_last &&
        (kind == ListKind::None || kind == ListKind::Bullet || number == m_lastNumber + 1);
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
    if (kind != ListKind::None) {
        // Some readers know the one way to tell a list and some the other; only the list tables
        // keep lists of one look apart.
        numbering(shown);
        m_out.word("\\ls", m_tables.list(paragraph));
        m_out.word("\\ilvl0");
    }
    shape(paragraph);
}

void ParagraphWriter::label(const ListLabel& label) {
    m_out.word("{\\pntext");
    if (label.kind == ListKind::Bullet) {
        m_out.word("\\f", m_tables.symbolFont());
        m_out.structure(BulletByte);
    } else {
        m_out.text(label.prefix + listNumber(label.kind, label.start) + label.suffix);
    }
    m_out.structure("\\tab}");
}

void ParagraphWriter::numbering(const ListLabel& label) {
    m_out.word("{\\*\\pn");
    if (label.kind == ListKind::Bullet) {
        m_out.word("\\pnlvlblt");
        side(label);
        m_out.word("\\pnf", m_tables.symbolFont());
        m_out.structure("\\pnindent0{\\pntxtb");
        m_out.structure(BulletByte);
        m_out.structure("}}");
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
    writeKept(m_out, m_tables, m_tables.names().keptAt(paragraph.kept));
    geometry(paragraph);
}

void ParagraphWriter::geometry(const ParagraphFormat& paragraph) {
    const auto unlessZero = [this](const char* name, int number) {
        if (number != 0)
            m_out.word(name, number);
    };
    if (paragraph.rightToLeft)
        m_out.word("\\rtlpar");
    if (paragraph.pageBreakBefore)
        m_out.word("\\pagebb");
    unlessZero("\\fi", paragraph.first);
    unlessZero("\\li", paragraph.left);
    unlessZero("\\ri", paragraph.right);
    unlessZero("\\sb", paragraph.before);
    unlessZero("\\sa", paragraph.after);
    if (paragraph.lineSpacing != 0) {
        m_out.word("\\sl", paragraph.lineSpacing);
        m_out.word("\\slmult", paragraph.lineMultiple ? 1 : 0);
    }
    alignment(paragraph.alignment);
    tabs(paragraph.tabs);
}

void ParagraphWriter::alignment(Alignment alignment) {
    switch (alignment) {
    case Alignment::Left:
        return;
    case Alignment::Right:
        m_out.word("\\qr");
        return;
    case Alignment::Center:
        m_out.word("\\qc");
        return;
    case Alignment::Justify:
        m_out.word("\\qj");
        return;
    }
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
