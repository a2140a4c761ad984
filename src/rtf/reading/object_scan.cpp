// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/object_scan.h"

#include "rtf/reading/field_scan.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

namespace orvalis::rtf {

ObjectScan scanObject(QByteArrayView content) {
    ObjectScan scan;
    bool hasResult = false;
    Tokenizer tokenizer(content);
    GroupHead head(true);
    qsizetype start = 0; ///< of the group
    int depth = 0;
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        head.take(token);
        if (token.kind == TokenKind::GroupStart) {
            start = tokenizer.position() - 1;
            ++depth;
        } else if (token.kind == TokenKind::GroupEnd) {
            --depth;
        }
        const bool tells = token.kind == TokenKind::Word && (token.word || head.isStarred());
        if (!tells && !isCharacters(token))
            continue;
        const bool isResult = tells && token.bytes == "result" && !hasResult;
        const bool isOfObject = tells && token.word && token.word->action == Action::SkipGroup;
        if (!head.isHead() || depth != 1 || !(isResult || isOfObject))
            return {};
        if (isResult)
            scan.hasStructure = scanField(tokenizer.groupAhead()).hasStructure;
        tokenizer.skipGroup();
        head.leave();
        --depth;
        if (isResult)
            scan.frame = content.first(start).toByteArray();
        hasResult |= isResult;
    }
    return scan;
}

} // namespace orvalis::rtf
