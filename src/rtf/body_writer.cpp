// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/body_writer.h"

#include "rtf/hyperlink.h"
#include "rtf/kept_text.h"
#include "rtf/picture_writer.h"

#include <cstdlib>

namespace orvalis::rtf {

namespace {

constexpr int FactoryTab = 720; // twips, what every reader assumes

const char* underlineWord(Underline underline) {
    switch (underline) {
    case Underline::None:
        return "\\ulnone";
    case Underline::Single:
        return "\\ul";
    case Underline::Words:
        return "\\ulw";
    case Underline::Double:
        return "\\uldb";
    case Underline::Dotted:
        return "\\uld";
    case Underline::Dash:
        return "\\uldash";
    case Underline::DashDot:
        return "\\uldashd";
    case Underline::Wave:
        return "\\ulwave";
    case Underline::Thick:
        return "\\ulth";
    case Underline::DashDotDot:
        return "\\uldashdd";
    case Underline::LongDash:
        return "\\ulldash";
    case Underline::ThickDotted:
        return "\\ulthd";
    case Underline::ThickDash:
        return "\\ulthdash";
    case Underline::ThickLongDash:
        return "\\ulthldash";
    case Underline::ThickDashDot:
        return "\\ulthdashd";
    case Underline::ThickDashDotDot:
        return "\\ulthdashdd";
    case Underline::HeavyWave:
        return "\\ulhwave";
    case Underline::DoubleWave:
        return "\\ululdbwave";
    }
    return "\\ul";
}

const char* scriptWord(Script script) {
    switch (script) {
    case Script::Super:
        return "\\super";
    case Script::Sub:
        return "\\sub";
    case Script::Normal:
        break;
    }
    return "\\nosupersub";
}

} // namespace

BodyWriter::BodyWriter()
    : m_paragraphs(m_out, m_tables) {
    // No text has this size, so that the first one tells its own.
    m_format.halfPoints = 0;
}

void BodyWriter::beginParagraph(const ParagraphFormat& paragraph, int number) {
    goTo(paragraph);
    m_paragraphs.begin(paragraph, number);
    writeAnchors(paragraph.anchors);
}

void BodyWriter::toggle(bool on, bool was, QByteArrayView word) {
    if (on == was)
        return;
    if (on)
        m_out.word(word);
    else
        m_out.word(word, 0);
}

void BodyWriter::change(const CharFormat& format) {
    if (format == m_format)
        return;
    changeLink(format.link);
    changeKept(format.kept);
    if (format.color != m_format.color)
        m_out.word("\\cf", m_tables.color(format.color));
    changeHighlight(format);
    if (format.underline != m_format.underline)
        m_out.word(underlineWord(format.underline));
    toggle(format.bold, m_format.bold, "\\b");
    toggle(format.italic, m_format.italic, "\\i");
    changeStrike(format);
    toggle(format.controlMarks, m_format.controlMarks, "\\orvmarks");
    toggle(format.hidden, m_format.hidden, "\\v");
    changeCapitals(format.capitals);
    changeSpacing(format.spacing);
    if (format.raise != m_format.raise)
        m_out.word(format.raise < 0 ? "\\dn" : "\\up", std::abs(format.raise));
    if (format.script != m_format.script)
        m_out.word(scriptWord(format.script));
    if (format.family != m_format.family) {
        m_out.word("\\f", m_tables.font(format.family));
        m_symbols = m_tables.symbolFontOf(format.family);
    }
    if (format.halfPoints != m_format.halfPoints)
        m_out.word("\\fs", format.halfPoints);
    m_format = format;
}

/// What is kept is a number of words at once, of which none needs an end but that of the whole
/// look.
void BodyWriter::changeKept(int kept) {
    if (kept == m_format.kept)
        return;
    if (m_format.kept != NothingKept) {
        const int link = m_format.link;
        m_out.word("\\plain");
        m_format = {};
        m_format.link = link;
    }
    writeKept(m_out, m_tables, names().keptAt(kept));
}

void BodyWriter::changeHighlight(const CharFormat& format) {
    if (format.highlight == m_format.highlight && format.shading == m_format.shading)
        return;
    if (format.shading != m_format.shading && m_format.highlight != AutomaticColor)
        m_out.word(m_format.shading ? "\\chcbpat" : "\\highlight", 0);
    if (format.highlight != AutomaticColor || format.shading == m_format.shading)
        m_out.word(format.shading ? "\\chcbpat" : "\\highlight", m_tables.color(format.highlight));
}

void BodyWriter::changeStrike(const CharFormat& format) {
    if (format.doubleStrike != m_format.doubleStrike && m_format.strike)
        m_out.word(m_format.doubleStrike ? "\\striked" : "\\strike", 0);
    else if (format.strike == m_format.strike)
        return;
    if (format.doubleStrike)
        m_out.word("\\striked", 1);
    else
        toggle(format.strike, m_format.strike && !m_format.doubleStrike, "\\strike");
}

void BodyWriter::changeSpacing(int spacing) {
    if (spacing == m_format.spacing)
        return;
    // Older readers know it in quarters of a point only; the last word holds.
    constexpr int TwipsPerQuarter = 5;
    m_out.word("\\expnd", spacing / TwipsPerQuarter);
    m_out.word("\\expndtw", spacing);
}

void BodyWriter::changeCapitals(Capitals capitals) {
    if (capitals == m_format.capitals)
        return;
    // The one kind ends before the other begins: many readers keep them in one place.
    const auto word = [](Capitals kind) { return kind == Capitals::Small ? "\\scaps" : "\\caps"; };
    if (m_format.capitals != Capitals::AsTyped)
        m_out.word(word(m_format.capitals), 0);
    if (capitals != Capitals::AsTyped)
        m_out.word(word(capitals));
}

void BodyWriter::changeLink(int link) {
    if (link == m_format.link)
        return;
    if (m_format.link != NoName) {
        // The closing braces bring back what held before the link.
        m_out.structure("}}");
        m_format = m_formatBeforeLink;
        m_symbols = m_tables.symbolFontOf(m_format.family);
    }
    if (link == NoName)
        return;
    m_formatBeforeLink = m_format;
    m_out.structure("{\\field{\\*\\fldinst{");
    m_out.text(hyperlinkInstruction(m_tables.names().linkAt(link)));
    m_out.structure("}}");
    m_out.word("{\\fldrslt");
    m_format.link = link;
}

void BodyWriter::writeAnchors(int anchors) {
    if (anchors != NothingKept)
        writeKept(m_out, m_tables, names().keptAt(anchors));
}

void BodyWriter::text(QStringView text, const CharFormat& format) {
    m_paragraphIsEmpty = false;
    change(format);
    if (m_symbols == SymbolFont::None)
        m_out.text(text);
    else
        m_out.symbols(m_symbols, text);
    writeAnchors(format.anchors);
}

void BodyWriter::picture(const Picture& picture, const CharFormat& format) {
    m_paragraphIsEmpty = false;
    // Text around it may be hidden where the picture shows.
    CharFormat own = format;
    own.hidden = picture.hidden;
    change(own);
    if (!picture.bytes.isEmpty())
        m_out.structure(pictureGroups(picture));
    writeAnchors(format.anchors);
}

void BodyWriter::endParagraph(const CharFormat* mark) {
    // A link ends with its paragraph: fields that span paragraphs confuse many readers.
    CharFormat atEnd = mark ? *mark : m_format;
    atEnd.link = NoName;
    // A raised text that goes on beyond its paragraph some readers lose, end of paragraph and all.
    if (!mark)
        atEnd.script = Script::Normal;
    change(atEnd);
    m_paragraphEnds = true;
}

/// Ends the paragraph ahead, and the section if another one begins.
void BodyWriter::goTo(const ParagraphFormat& paragraph) {
    if (paragraph.section == NothingKept) {
        endLastParagraph();
    } else {
        beginSection(names().keptAt(paragraph.section));
        m_paragraphs.forget();
    }
    m_paragraphIsEmpty = true;
}

void BodyWriter::beginRow(int row, const ParagraphFormat& first) {
    goTo(first);
    m_out.structure(kept(names().keptAt(row)));
    m_paragraphs.forget();
}

void BodyWriter::beginCell(int shape, int anchors) {
    endLastParagraph();
    writeKept(m_out, m_tables, names().keptAt(shape));
    writeAnchors(anchors);
    m_paragraphs.forget();
}

void BodyWriter::endCell(const CharFormat& look) {
    CharFormat unlinked = look;
    unlinked.link = NoName;
    change(unlinked);
    m_out.structure("\\cell\r\n");
}

void BodyWriter::endRow() {
    m_paragraphEnds = false;
    m_out.structure("\\cell\\row\r\n");
    m_paragraphs.forget();
}

void BodyWriter::endLastParagraph() {
    if (std::exchange(m_paragraphEnds, false))
        m_out.structure("\\par\r\n");
}

/// The word that ends a section ends its last paragraph too, if that holds anything.
void BodyWriter::beginSection(QStringView text) {
    const bool endsFirst = text.startsWith(ParagraphEndsFirst);
    if (endsFirst || m_paragraphIsEmpty)
        endLastParagraph();
    m_paragraphEnds = false;
    m_out.structure(kept(text.sliced(endsFirst ? ParagraphEndsFirst.size() : 0)));
}

QByteArray BodyWriter::kept(QStringView text) {
    if (text.isEmpty())
        return {};
    RtfOutput out;
    writeKept(out, m_tables, text);
    out.structure("\r\n");
    return out.bytes();
}

QByteArray BodyWriter::file(int defaultTab, const KeptParts& parts) {
    endLastParagraph();
    // What is kept may name fonts and colours that the text has not.
    const QByteArray styles = kept(parts.styles);
    const QByteArray head =
        kept(parts.info) + kept(parts.words) + kept(parts.notes) + kept(parts.section);
    RtfOutput out;
    out.reserve(m_out.bytes().size() + 1024);
    out.structure("{\\rtf1\\ansi\\ansicpg1252\\deff0");
    out.word("\\deflang", parts.language);
    if (defaultTab != FactoryTab && defaultTab > 0)
        out.word("\\deftab", defaultTab);
    m_tables.write(out, styles);
    out.structure("{\\*\\generator Orvalis;}");
    out.structure(head);
    out.structure("\\viewkind4\\uc1");
    out.structure(m_out.bytes());
    out.structure("}\r\n");
    return out.bytes();
}

} // namespace orvalis::rtf
