// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/tokenizer.h"

#include <utility>

namespace orvalis::rtf {

/// Follows, token by token, whether a group begins with the star of those that readers who do not
/// know them pass over. Whoever begins behind the first word of a group looks at the groups in it.
class GroupHead {
public:
    /// Takes the next token.
    void take(const Token& token) {
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
            if (isStar(token))
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

    /// The rest of the group was passed over.
    void leave() { m_atStart = m_starred = m_wordIsStarred = false; }

    /// Whether there is a star ahead, and the word for which it counts is still to come.
    bool hasStar() const { return m_starred; }
    /// Whether the word that was taken last stands behind a star.
    bool isStarred() const { return m_wordIsStarred; }

private:
    bool m_atStart = false; ///< of a group
    bool m_starred = false;
    bool m_wordIsStarred = false;
};

} // namespace orvalis::rtf
