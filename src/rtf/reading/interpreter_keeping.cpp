// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/kept/number_place.h"
#include "rtf/reading/interpreter.h"

#include <utility>

namespace orvalis::rtf {

namespace {

Destination destinationOf(KeptPlace place) {
    switch (place) {
    case KeptPlace::Picture:
        return Destination::Picture;
    case KeptPlace::ListPictures:
        return Destination::ListTable;
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
    const bool ofOneList = place == KeptPlace::ListPictures && isInList();
    if (m_state.destination != destination || m_state.deleted || ofOneList) {
        skipGroup();
        return;
    }
    const QByteArrayView content = m_tokenizer.groupAhead();
    const FileTables tables = fileTables(m_fonts.usual());
    const QByteArrayView opening(isStarred(place) ? "{\\*" : "{");
    GroupKeeper keeper(content, tables);
    if (destination == Destination::FontTable)
        keeper.beginIn(m_fonts.pageOfName(*m_documentPage), SymbolFont::None);
    QString group = keeper.kept(opening, spelled(token), m_keptLeft);
    // These stand where no number of a table has a place.
    if (destination != Destination::Body && group.contains(PlaceStart))
        group.clear();
    m_keptLeft -= group.size();
    skipGroup();
    placeGroup(place, group);
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
    case KeptPlace::ListPictures:
        m_parts.listPictures = group;
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

} // namespace orvalis::rtf
