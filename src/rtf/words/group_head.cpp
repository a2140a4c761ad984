// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/words/group_head.h"

#include <utility>

namespace orvalis::rtf {

void GroupHead::take(const Token& token) {
    m_wordIsStarred = false;
    switch (token.kind) {
    case TokenKind::GroupStart:
        m_atStart = true;
        m_starred = false;
        return;
    case TokenKind::GroupEnd:
        leave();
        return;
    case TokenKind::Text:
    case TokenKind::Byte:
    case TokenKind::Zero:
        // Blanks between the star and the word are nothing.
        if (!m_starred || !isBlank(token))
            m_atStart = m_starred = false;
        return;
    case TokenKind::Word:
        m_wordIsStarred = std::exchange(m_starred, false);
        m_atStart = false;
        return;
    case TokenKind::Symbol:
        if (token.byte == '*')
            m_starred = m_atStart;
        else if (isCharacters(token))
            m_starred = false;
        m_atStart = false;
        return;
    case TokenKind::Binary:
    case TokenKind::End:
        return;
    }
}

void GroupHead::leave() {
    m_atStart = m_starred = m_wordIsStarred = false;
}

} // namespace orvalis::rtf
