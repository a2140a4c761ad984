// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/body_writer.h"

#include "rtf/formats/stated.h"
#include "rtf/kept/kept_text.h"
#include "rtf/writing/kept_writer.h"
#include "rtf/writing/look_words.h"
#include "rtf/writing/picture_writer.h"

#include <cstdlib>

namespace orvalis::rtf {

namespace {

constexpr int FactoryTab = 720; // twips, what every reader assumes

} // namespace

BodyWriter::BodyWriter(const KeptParts& parts, const QString& shownFamily)
    : m_paragraphs(m_out, m_tables)
    , m_trackedWords(names()) {
    // No text has this size, so that the first one tells its own.
    m_format.halfPoints = 0;
    // The font of text that names none is the first of the table, or none of it.
    m_tables.expectOdd(parts.oddFamilies);
    const bool unsaid = parts.defaultFont == DefaultFont::Unsaid;
    if (parts.defaultFont == DefaultFont::Missing || (unsaid && parts.unnamedFamily.isEmpty())) {
        m_tables.leaveOutFirstFont();
        m_unnamedFamily = names().family(shownFamily);
    } else if (parts.defaultFont != DefaultFont::Unknown) {
        m_unnamedFamily = names().family(parts.unnamedFamily);
        m_tables.font(m_unnamedFamily);
    }
}

void BodyWriter::beginParagraph(const ParagraphFormat& paragraph, int number) {
    const bool breaks = paragraph.pageBreakBefore && paragraph.pageWord != PageWord::OfParagraph;
    const bool between = breaks && paragraph.pageWord == PageWord::Between && m_paragraphEnds &&
                         paragraph.section == NothingKept && isInBox(paragraph);
    if (between) {
        tellAfter();
        m_paragraphEnds = false;
        m_out.structure("\\page\r\n");
    }
    goTo(paragraph);
    m_pageBreaks = breaks && !between;
    if (!m_goesOn)
        m_paragraphs.begin(paragraph, number);
    m_mark = paragraph.mark;
    const bool isToldLate = !m_goesOn && paragraph.afterAhead != NoLength;
    m_afterBehind = isToldLate ? paragraph.after : NoLength;
    m_rowEnds = false;
    writeAnchors(paragraph.anchors);
}

void BodyWriter::toggle(int bit, bool on, QByteArrayView word) {
    if ((m_due & bit) == 0)
        return;
    if (on)
        m_out.word(word);
    else
        m_out.word(word, 0);
}

/// Nothing but the end of the whole look takes a word back.
void BodyWriter::plain() {
    const int link = m_format.link;
    const int field = m_format.field;
    // Some readers hold raised text back until its end is told.
    if (m_format.script != Script::Normal)
        m_out.word(scriptWord(Script::Normal));
    m_out.word("\\plain");
    m_format = {};
    m_format.link = link;
    m_format.field = field;
    m_stated = 0;
}

void BodyWriter::change(const CharFormat& format) {
    if (format == m_format)
        return;
    if (format.field != NothingKept && format.field != m_format.field &&
        !lineFrame(format.field).has(0)) {
        // Some readers set a field in the look that holds ahead of it.
        CharFormat ahead = format;
        ahead.field = NothingKept;
        change(ahead);
    }
    changeLink(format.link);
    changeField(format.field);
    const int leftOut = stated::leftOut(format.stated);
    if ((leftOut & m_stated) != 0)
        plain();
    // The script of eastern text is that in which its font is named.
    const bool namesScript = changeKept(format.kept);
    m_due = (stated::differences(format, m_format) | (format.stated & ~m_stated) |
             (namesScript ? stated::Font : 0)) &
            stated::All & ~leftOut;
    m_stated |= m_due;
    if ((m_due & stated::Color) != 0)
        m_out.word("\\cf", m_tables.color(format.color));
    if ((m_due & stated::Highlight) != 0)
        changeHighlight(format);
    if ((m_due & stated::Underline) != 0)
        m_out.word(underlineWord(format.underline));
    toggle(stated::Bold, format.bold, "\\b");
    toggle(stated::Italic, format.italic, "\\i");
    if ((m_due & stated::Strike) != 0)
        changeStrike(format);
    if (format.controlMarks != m_format.controlMarks)
        m_out.word(format.controlMarks ? "\\orvmarks" : "\\orvmarks0");
    toggle(stated::Hidden, format.hidden, "\\v");
    if ((m_due & stated::Capitals) != 0)
        changeCapitals(format.capitals);
    if ((m_due & stated::Spacing) != 0)
        changeSpacing(format.spacing);
    if ((m_due & stated::Raise) != 0)
        m_out.word(format.raise < 0 ? "\\dn" : "\\up", std::abs(format.raise));
    if ((m_due & stated::Script) != 0)
        m_out.word(scriptWord(format.script));
    if ((m_due & stated::Font) != 0)
        m_out.word("\\f", m_tables.font(format.family));
    if (format.family != m_format.family)
        m_symbols = m_tables.symbolFontOf(format.family);
    if ((m_due & stated::Size) != 0)
        m_out.word("\\fs", format.halfPoints);
    m_format = format;
}

/// What is kept is a number of words at once, of which none needs an end but that of the whole
/// look.
/// \returns whether one of them names a script.
bool BodyWriter::changeKept(int kept) {
    if (kept == m_format.kept)
        return false;
    if (m_format.kept != NothingKept)
        plain();
    const QString words = names().keptAt(kept);
    writeKept(m_out, m_tables, words);
    return words.contains(QLatin1StringView("\\dbch"));
}

void BodyWriter::changeHighlight(const CharFormat& format) {
    const bool kindChanges = format.shading != m_format.shading;
    if (kindChanges && m_format.highlight != AutomaticColor)
        m_out.word(m_format.shading ? "\\chcbpat" : "\\highlight", 0);
    if (format.highlight != AutomaticColor || !kindChanges)
        m_out.word(format.shading ? "\\chcbpat" : "\\highlight", m_tables.color(format.highlight));
}

void BodyWriter::changeStrike(const CharFormat& format) {
    if (format.doubleStrike != m_format.doubleStrike && m_format.strike)
        m_out.word(m_format.doubleStrike ? "\\striked" : "\\strike", 0);
    if (format.doubleStrike)
        m_out.word("\\striked", 1);
    else if (format.strike)
        m_out.word("\\strike");
    else if (!m_format.doubleStrike)
        m_out.word("\\strike", 0);
}

void BodyWriter::changeSpacing(int spacing) {
    // Older readers know it in quarters of a point only; the last word holds.
    constexpr int TwipsPerQuarter = 5;
    m_out.word("\\expnd", spacing / TwipsPerQuarter);
    m_out.word("\\expndtw", spacing);
}

void BodyWriter::changeCapitals(Capitals capitals) {
    // The one kind ends before the other begins: many readers keep them in one place.
    const auto word = [](Capitals kind) { return kind == Capitals::Small ? "\\scaps" : "\\caps"; };
    if (m_format.capitals != Capitals::AsTyped || capitals == Capitals::AsTyped)
        m_out.word(word(m_format.capitals), 0);
    if (capitals != Capitals::AsTyped)
        m_out.word(word(capitals));
}

void BodyWriter::writeAnchors(int anchors) {
    if (anchors == NothingKept)
        return;
    const QString kept = names().keptAt(anchors);
    // Some readers take raised text ahead of a note's number for a number of its own.
    if (m_format.script == Script::Super && kept.contains(u"\\chftn}")) {
        m_out.word(scriptWord(Script::Normal));
        m_format.script = Script::Normal;
    }
    writeKept(m_out, m_tables, QStringView(kept).sliced(kept.indexOf(NumberEnd) + 1));
}

/// Behind the look of what follows: many readers set the line that the break ends in it.
void BodyWriter::breakPage() {
    if (std::exchange(m_pageBreaks, false))
        m_out.word("\\page");
}

/// What a tracked change has done to text is told in a group of its own: some readers know no other
/// end of it.
void BodyWriter::goToTracked(const CharFormat& format) {
    const bool tracked = m_trackedWords.has(format.kept);
    const bool goesOn =
        format.kept == m_tracked && format.link == m_format.link && format.field == m_format.field;
    if (!goesOn)
        closeTracked();
    if (!tracked || goesOn)
        return;
    CharFormat around = m_format;
    around.link = format.link;
    around.field = format.field;
    change(around);
    m_aroundTracked = {m_format, m_stated};
    m_tracked = format.kept;
    m_out.structure("{");
}

void BodyWriter::closeTracked() {
    if (std::exchange(m_tracked, NothingKept) == NothingKept)
        return;
    m_out.structure("}");
    m_format = m_aroundTracked.format;
    m_stated = m_aroundTracked.stated;
    m_symbols = m_tables.symbolFontOf(m_format.family);
}

/// The look of what ends a paragraph or a cell, which a group cannot hold.
CharFormat BodyWriter::lookOfEnd(CharFormat look) {
    if (m_trackedWords.has(look.kept))
        look.kept = NothingKept;
    look.link = NoName;
    look.field = NothingKept;
    return look;
}

void BodyWriter::text(QStringView text, const CharFormat& format) {
    m_paragraphIsEmpty = m_boxIsEmpty = false;
    goToTracked(format);
    m_last = format;
    change(format);
    breakPage();
    const bool signs = m_symbols != SymbolFont::None;
    if (!cellsEnd(text, format)) {
        if (signs ? format.byNumber : m_tables.wantsNumbers(format.family))
            m_out.numbers(text);
        else if (!signs)
            m_out.text(text);
        else
            m_out.symbols(m_symbols, text);
    }
    writeAnchors(format.anchors);
}

void BodyWriter::picture(const Picture& picture, const CharFormat& format) {
    m_paragraphIsEmpty = m_boxIsEmpty = false;
    // Text around it may be hidden where the picture shows.
    CharFormat own = format;
    own.hidden = picture.hidden;
    goToTracked(own);
    m_last = own;
    change(own);
    breakPage();
    if (!picture.bytes.isEmpty() && !framed(picture))
        m_out.structure(pictureGroups(picture));
    writeAnchors(format.anchors);
}

void BodyWriter::endParagraph(const CharFormat* mark) {
    // A link ends with its paragraph: fields that span paragraphs confuse many readers.
    closeTracked();
    // What is told in a group does not hold for the mark, which gives the label of an item its
    // look.
    const bool isItem = m_paragraphs.last().list.kind != ListKind::None;
    CharFormat atEnd = isItem && !mark ? m_last : m_format;
    if (mark && m_mark == NothingKept)
        atEnd = *mark;
    atEnd = lookOfEnd(atEnd);
    // A raised text that goes on beyond its paragraph some readers lose, end of paragraph and all.
    if (!mark)
        atEnd.script = Script::Normal;
    change(atEnd);
    breakPage();
    m_paragraphEnds = true;
}

/// Ends the paragraph ahead, and the section if another one begins.
void BodyWriter::goTo(const ParagraphFormat& paragraph) {
    m_goesOn = false;
    if (goToBox(paragraph))
        return;
    if (paragraph.section == NothingKept) {
        endLastParagraph();
    } else {
        beginSection(names().keptAt(paragraph.section));
        m_paragraphs.forget();
    }
    m_paragraphIsEmpty = true;
}

/// The space after a paragraph that is told behind its text.
void BodyWriter::tellAfter() {
    if (m_afterBehind == NoLength)
        return;
    m_out.word("\\sa", std::exchange(m_afterBehind, NoLength));
    m_paragraphs.forget();
}

void BodyWriter::endLastParagraph() {
    if (!std::exchange(m_paragraphEnds, false))
        return;
    tellAfter();
    if (m_mark == NothingKept) {
        m_out.structure("\\par\r\n");
        return;
    }
    m_out.structure("{");
    writeKept(m_out, m_tables, names().keptAt(m_mark));
    m_out.structure("\\par}\r\n");
}

/// The word that ends a section ends its last paragraph too, if that holds anything.
void BodyWriter::beginSection(QStringView text) {
    const bool endsFirst = text.startsWith(ParagraphEndsFirst);
    if (endsFirst || m_paragraphIsEmpty)
        endLastParagraph();
    tellAfter();
    m_paragraphEnds = false;
    // Many readers end a table at its paragraphs only.
    if (std::exchange(m_rowEnds, false))
        m_out.structure("\\pard");
    m_out.structure(kept(text.sliced(endsFirst ? ParagraphEndsFirst.size() : 0)));
}

QByteArray BodyWriter::kept(QStringView text) {
    if (text.isEmpty())
        return {};
    RtfOutput out;
    writeKept(out, m_tables, text);
    out.structure("\r\n");
    return out.take();
}

QByteArray BodyWriter::file(int defaultTab, const KeptParts& parts) {
    if (m_box != NothingKept)
        closeBox();
    endLastParagraph();
    // What is kept may name fonts and colours that the text has not.
    const QByteArray styles = kept(parts.defaults) + kept(parts.styles) + kept(parts.authors);
    const QByteArray head =
        kept(parts.info) + kept(parts.words) + kept(parts.notes) + kept(parts.section);
    RtfOutput furtherDefaults;
    writeKept(furtherDefaults, m_tables, parts.furtherDefaults);
    // What the tables keep of lists names fonts, too.
    RtfOutput tables;
    m_tables.write(tables, styles, parts);
    RtfOutput out;
    out.reserve(m_out.bytes().size() + tables.bytes().size() + 1024);
    out.structure("{\\rtf1\\ansi\\ansicpg1252");
    if (parts.defaultFont == DefaultFont::Missing)
        out.word("\\deff", m_tables.unusedFont());
    else if (parts.defaultFont != DefaultFont::Unsaid)
        out.structure("\\deff0");
    out.structure(furtherDefaults.bytes());
    out.word("\\deflang", parts.language);
    if (defaultTab != FactoryTab && defaultTab > 0)
        out.word("\\deftab", defaultTab);
    out.structure(tables.bytes());
    if (!parts.nameless)
        out.structure("{\\*\\generator Orvalis;}");
    out.structure(head);
    out.word("\\viewkind", parts.viewKind);
    out.structure("\\uc1");
    out.structure(m_out.bytes());
    out.structure("}\r\n");
    return out.take();
}

} // namespace orvalis::rtf
