// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/tokenizer.h"

namespace orvalis::rtf {

/// Follows what the head of a group may say of it, for those who look ahead. It begins behind the
/// first word of a group.
class GroupHead {
public:
    /// Takes the next token.
    void take(const Token& token);
    /// The rest of the group was passed over.
    void leave();
    /// Whether the token that was taken last left the group with a star.
    bool hasStar() const { return m_starred; }
    /// Whether the word that was taken last stands behind the star of a group that readers who do
    /// not know it pass over.
    bool isStarred() const { return m_wordIsStarred; }

private:
    bool m_atStart = false; ///< of a group
    bool m_starred = false; ///< and what comes is the word
    bool m_wordIsStarred = false;
};

} // namespace orvalis::rtf
