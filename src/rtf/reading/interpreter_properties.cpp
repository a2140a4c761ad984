// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/interpreter.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

// Limits that no page reaches, so that sums and products of lengths stay far from overflow.
constexpr int LongestLength = 100000; // twips
constexpr int LargestSpacing = 2000;  // twips
constexpr int LargestRaise = 2000;    // half points
constexpr int MostUnicodeSkip = 255;
constexpr qsizetype MostTabs = 32;

int length(int twips) {
    return std::clamp(twips, -LongestLength, LongestLength);
}

// "\b" and "\b1" switch on, "\b0" off.
bool isOn(const Token& token) {
    return !token.hasParameter || token.parameter != 0;
}

} // namespace

bool Interpreter::characterWord(const Token& token) {
    CharFormat& chars = m_state.chars;
    switch (token.word->action) {
    case Action::PlainCharacters:
        plainCharacters();
        m_state.tellsPlain = true;
        return true;
    case Action::Font:
        if (m_state.destination == Destination::FontTable) {
            m_fonts.commit(m_names, *m_documentPage);
            m_fonts.begin(token.parameter);
            m_fontEntryDepth = m_groups.size();
        } else if (token.hasParameter) {
            m_state.font = token.parameter;
            if (shows())
                keepScript();
            selectFont();
            sayOfSide(stated::Font);
            const bool ofLists = m_state.destination == Destination::ListTable ||
                                 m_state.destination == Destination::ListOverrideTable;
            if (ofLists && isInList())
                m_lists.setLevelFont(m_state.symbols);
            else if (m_state.destination == Destination::Label)
                m_label.symbols = m_state.symbols;
        }
        return true;
    case Action::FontSize:
        chars.stated |= stated::Size & m_countedOfCharacters;
        chars.halfPoints = token.hasParameter && token.parameter > 0
                               ? std::min(token.parameter, LargestHalfPoints)
                               : DefaultHalfPoints;
        sayOfSide(stated::Size);
        return true;
    case Action::Color:
        chars.stated |= stated::Color & m_countedOfCharacters;
        chars.color = color(token.parameter);
        return true;
    case Action::Highlight:
        chars.stated |= stated::Highlight & m_countedOfCharacters;
        chars.highlight = color(token.parameter);
        chars.shading = chars.highlight != AutomaticColor && token.word->value != 0;
        return true;
    case Action::Bold:
        chars.stated |= stated::Bold & m_countedOfCharacters;
        chars.bold = isOn(token);
        sayOfSide(stated::Bold);
        return true;
    case Action::Italic:
        chars.stated |= stated::Italic & m_countedOfCharacters;
        chars.italic = isOn(token);
        sayOfSide(stated::Italic);
        return true;
    case Action::Strike:
        chars.stated |= stated::Strike & m_countedOfCharacters;
        chars.strike = isOn(token);
        chars.doubleStrike = chars.strike && token.word->value != 0;
        return true;
    case Action::Spacing:
        chars.stated |= stated::Spacing & m_countedOfCharacters;
        chars.spacing = std::clamp(token.word->value *
                                       std::clamp(token.parameter, -LargestSpacing, LargestSpacing),
                                   -LargestSpacing, LargestSpacing);
        return true;
    case Action::ControlMarks:
        chars.controlMarks = isOn(token);
        return true;
    case Action::Hidden:
        chars.stated |= stated::Hidden & m_countedOfCharacters;
        chars.hidden = isOn(token);
        return true;
    case Action::Deleted:
        if (isOn(token) && keepDeleted())
            return true;
        m_state.deleted = isOn(token);
        return true;
    case Action::UnderlineKind:
        chars.stated |= stated::Underline & m_countedOfCharacters;
        chars.underline = isOn(token) ? static_cast<Underline>(token.word->value) : Underline::None;
        return true;
    case Action::NoUnderline:
        chars.stated |= stated::Underline & m_countedOfCharacters;
        chars.underline = Underline::None;
        return true;
    case Action::ScriptKind:
        chars.stated |= stated::Script & m_countedOfCharacters;
        chars.script = isOn(token) ? static_cast<Script>(token.word->value) : Script::Normal;
        return true;
    case Action::Raise:
        chars.stated |= stated::Raise & m_countedOfCharacters;
        // Without a number the words mean six half points.
        chars.raise = token.word->value *
                      (token.hasParameter ? std::clamp(token.parameter, 0, LargestRaise) : 6);
        return true;
    case Action::CapitalsKind:
        chars.stated |= stated::Capitals & m_countedOfCharacters;
        // Switched off, the one kind leaves the other alone.
        if (isOn(token))
            chars.capitals = static_cast<Capitals>(token.word->value);
        else if (chars.capitals == static_cast<Capitals>(token.word->value))
            chars.capitals = Capitals::AsTyped;
        return true;
    case Action::UnicodeSkip:
        m_state.unicodeSkip =
            std::clamp(token.hasParameter ? token.parameter : 1, 0, MostUnicodeSkip);
        return true;
    default:
        return false;
    }
}

bool Interpreter::paragraphWord(const Token& token) {
    ParagraphFormat& paragraph = m_state.paragraph;
    const bool inBody = shows();
    switch (token.word->action) {
    case Action::PlainParagraph:
        m_bodyBegun |= shows();
        paragraph = {};
        m_state.keptOfParagraph = 0;
        m_state.inTable = false;
        m_state.border = nullptr;
        m_state.listOverride = NoList;
        m_state.listLevel = 0;
        m_state.tabType = QTextOption::LeftTab;
        m_state.tabLeader = TabLeader::None;
        return true;
    case Action::Align:
        paragraph.stated |= stated::Alignment & m_countedOfParagraphs;
        paragraph.alignment = static_cast<Alignment>(token.word->value);
        paragraph.leftIsSaid = paragraph.alignment == Alignment::Left;
        return true;
    case Action::LeftIndent:
        paragraph.stated |= stated::Left & m_countedOfParagraphs;
        paragraph.left = length(token.parameter);
        return true;
    case Action::FirstIndent:
        paragraph.stated |= stated::First & m_countedOfParagraphs;
        paragraph.first = length(token.parameter);
        return true;
    case Action::RightIndent:
        paragraph.stated |= stated::Right & m_countedOfParagraphs;
        paragraph.right = length(token.parameter);
        return true;
    case Action::SpaceBefore:
        paragraph.stated |= stated::Before & m_countedOfParagraphs;
        paragraph.before = std::max(length(token.parameter), 0);
        return true;
    case Action::SpaceAfter:
        paragraph.stated |= stated::After & m_countedOfParagraphs;
        paragraph.after = std::max(length(token.parameter), 0);
        return true;
    case Action::LineSpacing:
        paragraph.stated |= stated::LineSpacing & m_countedOfParagraphs;
        paragraph.lineSpacing = length(token.parameter);
        return true;
    case Action::LineMultiple:
        paragraph.lineMultiple = isOn(token);
        return true;
    case Action::TabKind:
        m_state.tabType = static_cast<QTextOption::TabType>(token.word->value);
        return true;
    case Action::TabLeaderKind:
        m_state.tabLeader = static_cast<TabLeader>(token.word->value);
        return true;
    case Action::TabPosition:
        tabStop(length(token.parameter));
        return true;
    case Action::Direction:
        paragraph.stated |= stated::Direction & m_countedOfParagraphs;
        paragraph.rightToLeft = token.word->value != 0;
        paragraph.leftToRight = !paragraph.rightToLeft;
        return true;
    case Action::PageBreakBefore:
        paragraph.stated |= stated::PageBreak & m_countedOfParagraphs;
        paragraph.pageBreakBefore = isOn(token);
        return true;
    case Action::ListOverride:
        if (m_state.destination != Destination::ListOverrideTable)
            // It takes a paragraph out of its list, but for old files that number from there on.
            m_state.listOverride =
                token.parameter == 0 && !m_lists.label(0, 0, false) ? NoList : token.parameter;
        else if (isInList())
            m_lists.setNumber(token.parameter);
        return true;
    case Action::ListLevel:
        m_state.listLevel = token.parameter;
        return true;
    case Action::ParagraphEnd:
        if (inBody)
            paragraphEnd();
        return true;
    case Action::SectionEnd:
        if (inBody)
            sectionEnd();
        return true;
    case Action::PageEnd:
        if (inBody)
            pageEnd();
        return true;
    default:
        return false;
    }
}

/// Of a level of the list tables the stop is that behind its labels.
void Interpreter::tabStop(int position) {
    const TabStop stop{position, m_state.tabType, m_state.tabLeader};
    m_state.tabType = QTextOption::LeftTab;
    m_state.tabLeader = TabLeader::None;
    if (m_state.destination == Destination::ListTable && isInList())
        m_lists.setLevelTab(position);
    else if (m_state.paragraph.tabs.size() < MostTabs)
        m_state.paragraph.tabs.append(stop);
}

void Interpreter::selectFont() {
    m_state.fontsVersion = m_fonts.version();
    const FontTable::Font* own = m_fonts.find(m_state.font);
    const FontTable::Font* usual = m_fonts.usual();
    // Where the file names no font for such text it is for whoever shows it to choose one.
    const bool chosen = namesFont() || (usual && m_fonts.saidOfUsual() != DefaultFont::Unsaid);
    const FontTable::Font* shown = namesFont() ? own : usual;
    m_state.chars.family = chosen ? shown->family : NoName;
    m_state.chars.stated &= ~stated::Font;
    m_state.chars.stated |= namesFont() ? stated::Font & m_countedOfCharacters : 0;
    m_state.symbols = chosen ? shown->symbols : SymbolFont::None;
    const FontTable::Font* coded = own ? own : usual;
    const bool hasPage =
        coded && coded->page && (chosen || coded->page->symbols() == SymbolFont::None);
    m_state.page = hasPage ? coded->page : m_documentPage;
    if (!namesFont())
        setEastern(nullptr);
}

/// Whether the text names a font, and not only a number that stands for none.
bool Interpreter::namesFont() const {
    const FontTable::Font* font = m_fonts.find(m_state.font);
    return font && font->family != NoName;
}

void Interpreter::plainCharacters() {
    const int link = m_state.chars.link;
    const int field = m_state.chars.field;
    m_state.chars = {};
    m_state.chars.link = link;
    m_state.chars.field = field;
    m_state.keptOfChars = 0;
    m_state.script = nullptr;
    m_state.eastern = nullptr;
    m_state.other = m_state.told = {};
    m_state.said = 0;
    m_state.rightToLeft = false;
    m_state.named = m_state.parted = false;
    m_state.deleted = false;
    m_state.font = NoFont;
    selectFont();
}

QRgb Interpreter::color(int index) const {
    return index >= 0 && index < m_colors.size() ? m_colors[index] : AutomaticColor;
}

} // namespace orvalis::rtf
