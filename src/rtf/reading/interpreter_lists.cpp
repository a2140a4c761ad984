// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"
#include "rtf/reading/interpreter.h"

#include <algorithm>

namespace orvalis::rtf {

bool Interpreter::listWord(const Token& token) {
    switch (token.word->action) {
    case Action::List:
        if (m_state.destination == Destination::ListTable && mayBeginList())
            m_lists.beginList(keptOfLists(token));
        return true;
    case Action::ListOverrideEntry:
        if (m_state.destination == Destination::ListOverrideTable && mayBeginList())
            m_lists.beginOverride(keptOfLists(token));
        return true;
    case Action::ListOverrideLevel:
    case Action::ListIdentity:
    case Action::ListLevelEntry:
    case Action::ListLevelKind:
    case Action::ListLevelStart:
    case Action::ListLevelFollow:
    case Action::ListLevelSide:
        if (isInList())
            tellOfList(token);
        return true;
    default:
        return numberingWord(token);
    }
}

void Interpreter::tellOfList(const Token& token) {
    const int number = token.parameter;
    switch (token.word->action) {
    case Action::ListOverrideLevel:
        m_lists.beginOverrideLevel();
        return;
    case Action::ListIdentity:
        m_lists.setIdentity(number);
        return;
    case Action::ListLevelEntry:
        m_lists.beginLevel();
        return;
    case Action::ListLevelKind:
        m_lists.setLevelKind(number);
        return;
    case Action::ListLevelStart:
        m_lists.setLevelStart(number);
        return;
    case Action::ListLevelFollow:
        m_lists.setLevelFollow(number);
        return;
    default:
        m_lists.setLevelSide(number);
        return;
    }
}

bool Interpreter::numberingWord(const Token& token) {
    const int number = token.parameter;
    switch (token.word->action) {
    case Action::FurtherFont: {
        const FontTable::Font* font = m_fonts.find(number);
        m_numberingSymbols = font ? font->symbols : SymbolFont::None;
        return true;
    }
    case Action::NumberingSide:
        m_numbering.side = static_cast<LabelSide>(token.word->value);
        return true;
    case Action::NumberingBullet:
        m_numbering.kind = ListKind::Bullet;
        return true;
    case Action::NumberingLevel:
        m_numbering.kind = number >= 11 ? ListKind::Bullet : ListKind::Decimal;
        return true;
    case Action::NumberingBody:
        m_numbering.kind = ListKind::Decimal;
        return true;
    case Action::NumberingContinued:
        m_numbering.kind = ListKind::None;
        m_numberingShows = false;
        return true;
    case Action::NumberingKind:
        if (m_numbering.kind != ListKind::Bullet && m_numberingShows)
            m_numbering.kind = static_cast<ListKind>(token.word->value);
        return true;
    case Action::NumberingStart:
        m_numbering.start = std::clamp(number, 0, LargestListNumber);
        return true;
    default:
        return false;
    }
}

/// The list or override whose word has come, in the list tables.
QString Interpreter::keptOfLists(const Token& token) {
    constexpr qint64 LongestList = 65536; // real ones have some thousand bytes
    if (m_tokenizer.position() < m_listKeptTo)
        return {};
    const QByteArrayView content = m_tokenizer.groupAhead();
    m_listKeptTo = m_tokenizer.position() + content.size();
    // Labels are told in the page of the document, whatever its fonts.
    const FileTables tables = fileTables(nullptr);
    const QString kept =
        GroupKeeper(content, tables).kept("{\\", token.bytes, std::min(LongestList, m_keptLeft));
    m_keptLeft -= kept.size();
    return kept;
}

/// Each one stands in a group of its own in its table.
bool Interpreter::mayBeginList() const {
    return !m_state.ownsDestination && !isInList();
}

/// What is told of a list counts within the group that is kept of it.
bool Interpreter::isInList() const {
    return m_tokenizer.position() <= m_listKeptTo;
}

} // namespace orvalis::rtf
