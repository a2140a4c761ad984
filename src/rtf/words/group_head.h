// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/control_words.h"
#include "rtf/words/tokenizer.h"

#include <utility>

namespace orvalis::rtf {

/// Follows, token by token, how a group begins: only its head says what the group is for, and the
/// star there marks those that readers who do not know them pass over.
class GroupHead {
public:
    /// \param isOpen whether what comes first stands in the head of a group: not where the word
    /// ahead has said what the group is for.
    explicit GroupHead(bool isOpen)
        : m_isOpen(isOpen) {}

    /// Takes the next token.
    void take(const Token& token) {
        m_wordIsStarred = m_wordIsHead = false;
        switch (token.kind) {
        case TokenKind::GroupStart:
            m_isOpen = m_atStart = true;
            m_starred = m_hasBareStar = false;
            return;
        case TokenKind::GroupEnd:
            leave();
            return;
        case TokenKind::Text:
            bytes(token.bytes);
            return;
        case TokenKind::Byte:
            bytes(QByteArrayView(&token.byte, 1));
            return;
        case TokenKind::Zero:
            bytes(" ");
            return;
        case TokenKind::Word:
            m_wordIsStarred = std::exchange(m_starred, false);
            m_wordIsHead = m_isOpen;
            m_atStart = false;
            m_isOpen =
                m_isOpen && !isCharacters(token) && !(token.word && ownsGroup(token.word->action));
            return;
        case TokenKind::Symbol:
            m_starred = isStar(token) && (m_starred || m_atStart);
            m_isOpen = m_isOpen && !isCharacters(token);
            m_atStart = false;
            return;
        case TokenKind::Binary:
        case TokenKind::End:
            return;
        }
    }

    /// The rest of the group was passed over.
    void leave() { m_isOpen = m_atStart = m_starred = m_wordIsStarred = m_wordIsHead = false; }

    /// Whether there is a star ahead, and the word for which it counts is still to come.
    bool hasStar() const { return m_starred; }
    /// Whether the word that was taken last stands behind a star.
    bool isStarred() const { return m_wordIsStarred; }
    /// Whether the word that was taken last stands in the head of a group.
    bool isHead() const { return m_wordIsHead; }

private:
    void bytes(QByteArrayView run) {
        if (!m_isOpen)
            return;
        const bool isBlank = run.trimmed().isEmpty();
        // Blanks between the star and the word are nothing.
        if (m_starred && isBlank)
            return;
        m_atStart = m_starred = false;
        // Some files indent the heads of their groups, and some have lost the backslash of "\*":
        // the words behind are heads all the same.
        m_isOpen = isBlank || (run.trimmed() == "*" && !m_hasBareStar);
        m_hasBareStar |= !isBlank;
    }

    bool m_isOpen;
    bool m_atStart = false; ///< of a group
    bool m_starred = false;
    bool m_hasBareStar = false; ///< one without its backslash
    bool m_wordIsStarred = false;
    bool m_wordIsHead = false;
};

} // namespace orvalis::rtf
