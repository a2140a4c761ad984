// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/picture_scan.h"

#include "rtf/words/control_words.h"
#include "rtf/words/group_head.h"
#include "rtf/words/hex.h"
#include "rtf/words/tokenizer.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

/// Whether a group with this head, in a picture, has no bytes of it.
bool opensOther(Action head) {
    return hidesText(head) || head == Action::PictureGroup || head == Action::UnicodePair ||
           head == Action::ShapeText;
}

} // namespace

bool hasPictureBytes(QByteArrayView content) {
    Tokenizer tokenizer(content);
    GroupHead head(false);
    int digits = 0;
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        head.take(token);
        const bool isWord = token.kind == TokenKind::Word;
        const Action action = isWord && token.word ? token.word->action : Action::Version;
        if (isWord && (token.word ? head.isHead() && opensOther(action) : head.isStarred())) {
            tokenizer.skipGroup();
            head.leave();
        }
        if (token.kind == TokenKind::Text)
            digits += int(std::count_if(token.bytes.begin(), token.bytes.end(),
                                        [](char c) { return hexDigit(uchar(c)) >= 0; }));
        else if (token.kind == TokenKind::Byte)
            digits += hexDigit(uchar(token.byte)) >= 0 ? 1 : 0;
        if (digits > 1 || (token.kind == TokenKind::Binary && !token.bytes.isEmpty()))
            return true;
    }
    return false;
}

} // namespace orvalis::rtf
