// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/box_scan.h"

#include "rtf/words/control_words.h"
#include "rtf/words/hex.h"
#include "rtf/words/tokenizer.h"

#include <algorithm>
#include <utility>

namespace orvalis::rtf {

namespace {

/// Whether a picture's group has a byte of a picture.
bool hasPictureData(QByteArrayView group) {
    Tokenizer tokenizer(group);
    Token token;
    int depth = 0;
    qsizetype digits = 0;
    for (tokenizer.next(token); token.kind != TokenKind::End && digits < 2; tokenizer.next(token)) {
        if (token.kind == TokenKind::GroupStart)
            ++depth;
        else if (token.kind == TokenKind::GroupEnd)
            --depth;
        else if (token.kind == TokenKind::Binary && !token.bytes.isEmpty())
            return true;
        else if (token.kind == TokenKind::Text && depth == 0)
            digits += std::count_if(
                token.bytes.begin(), token.bytes.end(),
                [](char c) { return hexDigit(uchar(c)) >= 0; });
    }
    return digits >= 2;
}

class BoxTokens {
public:
    explicit BoxTokens(QByteArrayView content)
        : m_tokenizer(content) {}

    BoxScan run() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token))
            take(token);
        m_scan.shows |= m_cellEnded;
        return m_scan;
    }

private:
    void take(const Token& token) {
        const bool isWord = token.kind == TokenKind::Word;
        const Action action = isWord && token.word ? token.word->action : Action::Version;
        const bool isStarred = std::exchange(m_starred, isStar(token));
        m_depth += token.kind == TokenKind::GroupStart ? 1 : 0;
        m_depth -= token.kind == TokenKind::GroupEnd ? 1 : 0;
        m_scan.end = m_tokenizer.position();
        if (isWord && (token.word ? m_begins && hidesText(action) : isStarred)) {
            m_scan.isOdd |= m_depth == 0 && action == Action::KeepGroup;
            passGroup();
        } else if (action == Action::PictureGroup) {
            m_scan.isOdd |= m_depth == 0; // the text itself would be the picture
            if (hasPictureData(m_tokenizer.groupAhead()))
                show();
            passGroup();
        } else {
            content(token, action);
        }
    }

    void content(const Token& token, Action action) {
        const bool endsParagraph = action == Action::ParagraphEnd || isLineEnd(token);
        const bool endsCell = action == Action::CellEnd;
        const bool shown = isCharacters(token) || (m_cellEnded && (endsCell || endsParagraph));
        m_cellEnded = (m_cellEnded || endsCell) && action != Action::RowEnd;
        m_begins = token.kind == TokenKind::GroupStart ||
                   (m_begins && !shown && token.kind != TokenKind::GroupEnd);
        if (shown)
            show();
        if (endsParagraph || endsCell)
            m_scan.endsParagraph = endsParagraph;
    }

    void show() {
        m_scan.shows = true;
        m_scan.endsParagraph = false;
    }

    /// Over the rest of the group.
    void passGroup() {
        m_tokenizer.skipGroup();
        --m_depth;
        m_begins = false;
        m_scan.end = m_tokenizer.position();
    }

    Tokenizer m_tokenizer;
    BoxScan m_scan;
    int m_depth = 0; ///< of groups that are open
    bool m_starred = false;
    bool m_begins = true;     ///< the group: its first word may make it something else than text
    bool m_cellEnded = false; ///< which shows only where another one, or text, is behind it
};

} // namespace

BoxScan scanBox(QByteArrayView content) {
    return BoxTokens(content).run();
}

} // namespace orvalis::rtf
