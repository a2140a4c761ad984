// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/plain_run.h"

#include "rtf/words/group_head.h"
#include "rtf/words/kept_words.h"
#include "rtf/words/tokenizer.h"

namespace orvalis::rtf {

bool isLook(const ControlWord& word) {
    if (word.action == Action::Keep)
        return keptWord(word).level == KeptLevel::Characters;
    return word.action >= Action::PlainCharacters && word.action <= Action::CapitalsKind &&
           word.action != Action::Deleted;
}

bool isPlainRun(QByteArrayView content) {
    bool hasText = false;
    Tokenizer tokenizer(content);
    GroupHead head(true);
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        head.take(token);
        hasText |= isCharacters(token);
        const bool isOther = isLineEnd(token) || token.kind == TokenKind::Binary ||
                             (token.kind == TokenKind::Word && head.isStarred());
        const bool isStrange = token.kind == TokenKind::Word && token.word &&
                               !isLook(*token.word) && !isCharacters(token) &&
                               token.word->action != Action::UnicodeSkip;
        // Text that is plain is not taken out any more.
        const bool isPlain = token.kind == TokenKind::Word && token.word &&
                             token.word->action == Action::PlainCharacters;
        if (isOther || isStrange || isPlain)
            return false;
    }
    return hasText;
}

} // namespace orvalis::rtf
