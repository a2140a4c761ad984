// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/box_scan.h"

#include "rtf/kept/kept_shape.h"
#include "rtf/reading/field_scan.h"
#include "rtf/reading/picture_scan.h"
#include "rtf/words/control_words.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

#include <utility>

namespace orvalis::rtf {

namespace {

/// Whether a shape has a text or a picture, of which only its reader knows what they show.
bool holdsFigure(QByteArrayView shape) {
    return shape.contains("\\shptxt") || shape.contains("\\pict");
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
        m_scan.endsCell = m_cellEnded;
        return m_scan;
    }

private:
    void take(const Token& token) {
        const bool isWord = token.kind == TokenKind::Word;
        const Action action = isWord && token.word ? token.word->action : Action::Version;
        m_head.take(token);
        m_scan.end = m_tokenizer.position();
        if (isWord && (token.word ? m_head.isHead() && hidesText(action) : m_head.isStarred())) {
            if (action == Action::ShapeInstruction)
                shape(m_tokenizer.groupAhead());
            m_scan.holdsMore |= tellsOfDocument(action);
            if (action == Action::FieldInstruction &&
                !fieldText(instructionText(m_tokenizer.groupAhead())).isEmpty())
                mayShow();
            passGroup();
        } else if (m_head.isHead() && action == Action::PictureGroup) {
            if (hasPictureBytes(m_tokenizer.groupAhead()))
                show();
            passGroup();
        } else if (m_head.isHead() && (isFigure(token) || action == Action::UnicodePair)) {
            if (isFigure(token) || m_tokenizer.groupAhead().contains("\\ud"))
                mayShow();
            passGroup();
        } else {
            content(token, action);
        }
    }

    /// One in the text: what it has of that is read with it.
    void shape(QByteArrayView content) {
        m_scan.holdsMore |= holdsFigure(content);
        m_scan.endsSection |= content.contains("\\sect");
    }

    void content(const Token& token, Action action) {
        const bool endsParagraph = action == Action::ParagraphEnd || isLineEnd(token);
        const bool endsCell = action == Action::CellEnd;
        const bool shown = isCharacters(token) || (m_cellEnded && (endsCell || endsParagraph));
        m_cellEnded = (m_cellEnded || endsCell) && action != Action::RowEnd;
        m_scan.endsSection |= action == Action::SectionEnd;
        const bool isMark = token.kind == TokenKind::Word && token.bytes == ShownEmpty.sliced(1);
        if (shown || isMark)
            show();
        if (endsParagraph || endsCell)
            m_scan.endsParagraph = endsParagraph;
    }

    /// As only the reader can tell.
    void mayShow() {
        m_scan.shows = true;
        m_scan.endsParagraph = false;
    }

    void show() {
        mayShow();
        m_scan.isCertain = true;
    }

    /// Over the rest of the group.
    void passGroup() {
        m_tokenizer.skipGroup();
        m_head.leave();
        m_scan.end = m_tokenizer.position();
    }

    Tokenizer m_tokenizer;
    BoxScan m_scan;
    GroupHead m_head{false};
    bool m_cellEnded = false; ///< which shows only where another one, or text, is behind it
};

} // namespace

BoxScan scanBox(QByteArrayView content) {
    return BoxTokens(content).run();
}

} // namespace orvalis::rtf
