// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/kept/kept_text.h"
#include "rtf/kept/number_place.h"
#include "rtf/reading/interpreter.h"
#include "rtf/writing/look_words.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

Destination destinationOf(KeptPlace place) {
    switch (place) {
    case KeptPlace::Picture:
        return Destination::Picture;
    case KeptPlace::FontPanose:
    case KeptPlace::FontAlternative:
        return Destination::FontTable;
    default:
        return Destination::Body;
    }
}

bool isStarred(KeptPlace place) {
    switch (place) {
    case KeptPlace::Styles:
    case KeptPlace::Info:
    case KeptPlace::Section:
    case KeptPlace::Anchor:
        return false;
    default:
        return true;
    }
}

} // namespace

bool Interpreter::keptWord(const Token& token) {
    if (token.word->action == Action::SectionDefaults) {
        if (shows()) {
            dissolveLineBox();
            m_keptOfSection = 0;
            m_columns.clear();
            m_state.border = nullptr;
        }
        return true;
    }
    if (token.word->action == Action::SectionColumn) {
        if (shows())
            dissolveLineBox();
        if (shows())
            m_columns.take(static_cast<ColumnWord>(token.word->value), token.parameter);
        return true;
    }
    if (token.word->action == Action::AnchorMark) {
        if (!shows())
            return true;
        textComes();
        endHalfCharacter();
        anchorMark(QString::fromLatin1(token.bytes));
        return true;
    }
    if (token.word->action != Action::Keep)
        return false;
    if (!shows())
        return true;
    KeptWord kept = rtf::keptWord(*token.word);
    KeptCall call{token.word, nullptr, token.hasParameter, token.parameter};
    if (kept.kind == KeptKind::Side)
        m_state.border = call.side = token.word;
    else if (kept.level == KeptLevel::Border)
        call.side = m_state.border;
    if (kept.level == KeptLevel::Border) {
        if (!call.side)
            return true;
        kept.level = rtf::keptWord(*call.side).level;
    }
    if (kept.kind == KeptKind::Color) {
        call.hasNumber = true;
        call.number = int(color(token.parameter));
    }
    if (kept.kind == KeptKind::Style && !m_stylesKept)
        return true;
    if (kept.kind == KeptKind::Author && !m_authorsKept)
        return true;
    if (kept.kind == KeptKind::Script) {
        m_state.script = token.word;
        return true;
    }
    if (kept.kind == KeptKind::Associate && !saysOfSide(call))
        return true;
    const bool mayBeOfSide = kept.kind == KeptKind::Associate || kept.kind == KeptKind::Font;
    if (mayBeOfSide && !m_state.script && sideWord(call))
        return true;
    const bool ofScript = kept.kind == KeptKind::Associate && m_state.script;
    if (ofScript || (kept.kind == KeptKind::Font && !furtherFont(call)))
        return true;
    if (kept.kind == KeptKind::Direction) {
        m_state.script = nullptr;
        turn(QByteArrayView(token.word->name) == "rtlch");
    }
    switch (kept.level) {
    case KeptLevel::Characters:
        keepCharacters(m_kept.with(m_state.keptOfChars, call));
        return true;
    case KeptLevel::Paragraph:
        keepParagraph(m_kept.with(m_state.keptOfParagraph, call));
        return true;
    case KeptLevel::Section:
        dissolveLineBox();
        m_keptOfSection = m_kept.with(m_keptOfSection, call);
        return true;
    case KeptLevel::Document:
        dissolveLineBox();
        m_keptOfDocument = m_kept.with(m_keptOfDocument, call);
        return true;
    case KeptLevel::Row:
    case KeptLevel::Cell:
        keepOfRow(kept.level, call);
        return true;
    case KeptLevel::Border:
        break;
    }
    return true;
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

/// The font of text in a script, or in the other direction, that the run has not by itself.
bool Interpreter::furtherFont(KeptCall& call) const {
    const FontTable::Font* font = m_fonts.find(call.number);
    if (!call.hasNumber || !font || font->family == NoName)
        return false;
    call.side = m_state.script;
    call.number = font->family;
    return true;
}

/// The script that a font is named in is that of the text.
void Interpreter::keepScript() {
    const bool eastern = m_state.script && m_state.script->name == "dbch" && namesFont();
    setEastern(eastern ? m_state.script : nullptr);
}

void Interpreter::setEastern(const ControlWord* now) {
    const ControlWord* before = std::exchange(m_state.eastern, now);
    if (now == before)
        return;
    const ControlWord* word = now ? now : before;
    keepCharacters(m_kept.with(m_state.keptOfChars, {word, nullptr, true, now ? 1 : 0}));
}

void Interpreter::keepCharacters(int set) {
    m_state.keptOfChars = set;
    m_state.chars.kept = m_kept.name(set);
}

void Interpreter::keepParagraph(int set) {
    m_state.keptOfParagraph = set;
    m_state.paragraph.kept = m_kept.name(set);
}

/// \param usual font of text that names none, null for none.
FileTables Interpreter::fileTables(const FontTable::Font* usual) const {
    const bool isSaid = m_fonts.saidOfUsual() != DefaultFont::Unsaid;
    const bool hasPage =
        usual && usual->page && (isSaid || usual->page->symbols() == SymbolFont::None);
    const SymbolFont symbols = usual && isSaid ? usual->symbols : SymbolFont::None;
    return {m_fonts,
            m_colors,
            m_names,
            *m_documentPage,
            hasPage ? *usual->page : *m_documentPage,
            symbols,
            m_state.unicodeSkip};
}

/// A group that nobody here knows goes with the place where it stands, or with the document as long
/// as that has no paragraph.
void Interpreter::keepStrange(const Token& token) {
    const bool isInBody = m_bodyBegun || m_inParagraph || m_headEnded || !m_text.isEmpty();
    const bool isInCopy = isInFrame() || (m_lineBox.depth > 0 && !m_lineBox.isOpen);
    if (m_unstoredGroups > 0 || isInCopy)
        skipGroup();
    else
        keepGroup(token, isInBody ? KeptPlace::StarredAnchor : KeptPlace::StarredInfo);
}

void Interpreter::keepGroup(const Token& token, KeptPlace place) {
    const Destination destination = destinationOf(place);
    if (m_state.destination != destination || m_state.deleted) {
        skipGroup();
        return;
    }
    const QByteArrayView content = m_tokenizer.groupAhead();
    const FileTables tables = fileTables(m_fonts.usual());
    const QByteArrayView opening(isStarred(place) ? "{\\*\\" : "{\\");
    GroupKeeper keeper(content, tables);
    if (destination == Destination::FontTable)
        keeper.beginIn(m_fonts.pageOfName(*m_documentPage), SymbolFont::None);
    QByteArray word = token.bytes.toByteArray();
    if (token.hasParameter)
        word += QByteArray::number(token.parameter);
    QString group = keeper.kept(opening, word, m_keptLeft);
    // These stand where no number of a table has a place.
    if (destination != Destination::Body && group.contains(PlaceStart))
        group.clear();
    m_keptLeft -= group.size();
    skipGroup();
    placeGroup(place, group);
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

void Interpreter::placeGroup(KeptPlace place, const QString& group) {
    const bool staysInLine = destinationOf(place) != Destination::Body || isAnchor(place);
    if (!staysInLine)
        dissolveLineBox();
    switch (place) {
    case KeptPlace::Styles:
        if (m_headEnded)
            return;
        m_stylesKept = !group.isEmpty() && m_sink.takesStyles(group);
        m_parts.styles = group;
        return;
    case KeptPlace::Authors:
        if (m_headEnded)
            return;
        m_authorsKept = !group.isEmpty() && m_sink.takesAuthors(group);
        m_parts.authors = group;
        return;
    case KeptPlace::Defaults:
        if (!m_headEnded)
            m_parts.defaults += group;
        return;
    case KeptPlace::Info:
    case KeptPlace::StarredInfo:
        m_parts.info += group;
        return;
    case KeptPlace::Notes:
        m_parts.notes += group;
        return;
    case KeptPlace::Section:
        m_sectionGroups += group;
        return;
    case KeptPlace::Picture:
        m_pictureGroups += group;
        return;
    case KeptPlace::FontPanose:
        m_fonts.setPanose(group);
        return;
    case KeptPlace::FontAlternative:
        m_fonts.setAlternative(group);
        return;
    case KeptPlace::Anchor:
    case KeptPlace::StarredAnchor:
    case KeptPlace::StarredNote:
        anchor(group);
        return;
    }
}

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

/// The word that stands for the number of a note.
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

/// What was gathered so far belongs to the section that ends; its words go on to hold.
void Interpreter::sectionEnd() {
    dissolveLineBox();
    textComes();
    const bool paragraphEndedItself = !m_inParagraph && !std::exchange(m_box.hasEnded, false);
    if (m_inParagraph)
        paragraphEnd();
    m_rows.leave();
    m_paragraphBeforeSection = paragraphEndedItself;
    tellFirstSection();
    m_sectionGroups.clear();
    m_sectionBegins = true;
}

QString Interpreter::sectionBreak() {
    const QString text = sectionText();
    m_keptLeft -= text.size();
    if (m_keptLeft <= 0)
        m_columns.clear();
    return (m_paragraphBeforeSection ? ParagraphEndsFirst.toString() : QString()) +
           QStringLiteral("\\sect") + text;
}

void Interpreter::tellFirstSection() {
    if (!std::exchange(m_firstSectionTold, true) &&
        (m_keptOfSection != 0 || !m_columns.text().isEmpty() || !m_sectionGroups.isEmpty()))
        m_parts.section = sectionText();
}

QString Interpreter::sectionText() const {
    return QStringLiteral("\\sectd") + m_names.keptAt(m_kept.name(m_keptOfSection)) +
           m_columns.text() + m_sectionGroups;
}

/// The fonts of text in other scripts, and of styles, that names none.
QString Interpreter::furtherDefaults() const {
    constexpr std::array DefaultFonts = {"adeff", "stshfdbch", "stshfloch", "stshfhich", "stshfbi"};
    QString text;
    for (size_t i = 0; i < DefaultFonts.size(); ++i) {
        const FontTable::Font* font = m_fonts.find(m_furtherDefaults[i]);
        if (m_furtherDefaults[i] != NoName && font && font->family != NoName)
            text += u'\\' + QLatin1StringView(DefaultFonts[i]) +
                    keptFont(m_names.familyAt(font->family));
    }
    return text;
}

void Interpreter::tellKept() {
    tellFirstSection();
    m_parts.words = m_names.keptAt(m_kept.name(m_keptOfDocument));
    m_parts.furtherDefaults = furtherDefaults();
    m_parts.nameless = m_nameless;
    m_parts.defaultFont = m_fonts.saidOfUsual();
    m_parts.faces = m_fonts.faces(m_names);
    m_parts.themes = m_themes;
    m_parts.themes.removeIf([](const auto& color) { return color->isEmpty(); });
    m_parts.oddFamilies = m_fonts.oddFamilies(m_names);
    if (m_parts.defaultFont == DefaultFont::Named)
        m_parts.unnamedFamily = m_names.familyAt(m_fonts.usual()->family);
    m_sink.kept(m_parts);
}

} // namespace orvalis::rtf
