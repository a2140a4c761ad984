// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/field_shape.h"

#include "rtf/reading/unseen_text.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

#include <utility>

namespace orvalis::rtf {

namespace {

/// Reads the tokens of a field up to the first that is neither of its instruction, nor of one
/// shape, nor a look.
class FieldTokens {
public:
    explicit FieldTokens(QByteArrayView content)
        : m_tokenizer(content) {}

    QByteArrayView shape() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token)) {
            m_head.take(token);
            if (!take(token))
                return {};
        }
        return m_shape;
    }

private:
    /// \returns whether the token may stand beside the shape.
    bool take(const Token& token) {
        switch (token.kind) {
        case TokenKind::GroupStart:
            ++m_depth;
            return true;
        case TokenKind::GroupEnd:
            leave();
            return true;
        case TokenKind::Word:
            return word(token);
        case TokenKind::Symbol:
            return isStar(token);
        default:
            return false;
        }
    }

    bool word(const Token& token) {
        if (!token.word) {
            if (m_head.isStarred() && m_head.isHead())
                passGroup();
            return true;
        }
        if (!m_head.isHead() || m_depth == 0)
            return isLook(*token.word);
        switch (token.word->action) {
        case Action::FieldInstruction:
            passGroup();
            return !std::exchange(m_hasInstruction, true);
        case Action::PassThrough:
            if (token.bytes != "fldrslt" || m_resultDepth > 0)
                return false;
            m_resultDepth = m_depth;
            return true;
        case Action::ShapeGroup:
            if (m_resultDepth == 0 || !m_shape.isNull() ||
                token.word->value != int(ShapeKind::Shape))
                return false;
            m_shape = m_tokenizer.groupAhead();
            passGroup();
            return true;
        default:
            return isLook(*token.word);
        }
    }

    /// Over the rest of the group.
    void passGroup() {
        m_tokenizer.skipGroup();
        m_head.leave();
        leave();
    }

    void leave() {
        if (m_depth == m_resultDepth)
            m_resultDepth = 0;
        --m_depth;
    }

    Tokenizer m_tokenizer;
    GroupHead m_head{true};
    QByteArrayView m_shape;
    bool m_hasInstruction = false;
    int m_depth = 0;
    int m_resultDepth = 0; ///< where the group of the result stands, 0 outside of it
};

} // namespace

QByteArrayView shapeOfField(QByteArrayView content) {
    return FieldTokens(content).shape();
}

} // namespace orvalis::rtf
