// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/unseen_text.h"

#include "rtf/words/group_head.h"
#include "rtf/words/kept_words.h"
#include "rtf/words/tokenizer.h"

#include <vector>

namespace orvalis::rtf {

namespace {

/// Reads the tokens once, with an eye on what would show.
class UnseenTokens {
public:
    UnseenTokens(QByteArrayView content, UnseenAs as, bool isUnseen)
        : m_tokenizer(content)
        , m_switch(as == UnseenAs::Deleted ? Action::Deleted : Action::Hidden)
        , m_isUnseen(isUnseen) {}

    bool run() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token)) {
            m_head.take(token);
            if (!take(token))
                return false;
        }
        return m_any;
    }

private:
    /// \returns whether all may still be as it is asked.
    bool take(const Token& token) {
        if (isLineEnd(token))
            return mayEndParagraphs() && unseen();
        if (isCharacters(token))
            return unseen();
        switch (token.kind) {
        case TokenKind::GroupStart:
            m_around.push_back(m_isUnseen);
            return true;
        case TokenKind::GroupEnd:
            leave();
            return true;
        case TokenKind::Word:
            return word(token);
        case TokenKind::Binary:
            return false;
        default:
            return true;
        }
    }

    bool word(const Token& token) {
        if (!token.word) {
            if (m_head.isStarred() && m_head.isHead())
                passGroup();
            return true;
        }
        const ControlWord& word = *token.word;
        if (isDestination(word.action))
            return !m_around.empty() && m_head.isHead() && group(word);
        if (word.action == m_switch)
            m_isUnseen = !token.hasParameter || token.parameter != 0;
        else if (word.action == Action::PlainCharacters)
            m_isUnseen = false;
        else if (word.action == Action::ParagraphEnd || word.action == Action::PageEnd)
            return mayEndParagraphs() && unseen();
        else if (word.action == Action::AnchorMark)
            return unseen();
        return isLook(word) || isOfParagraph(word) || word.action == Action::UnicodeSkip ||
               word.action == m_switch;
    }

    /// \returns whether a group with this head is nothing but more of that.
    bool group(const ControlWord& head) {
        switch (head.action) {
        case Action::SkipGroup:
        case Action::FieldInstruction:
            passGroup();
            return true;
        case Action::ShapeInstruction:
        case Action::NoShapePicture:
            passGroup();
            return m_switch == Action::Deleted;
        case Action::KeepGroup:
            passGroup();
            m_any = true;
            return isAnchor(static_cast<KeptPlace>(head.value)) &&
                   (m_isUnseen || m_switch == Action::Hidden);
        case Action::PictureGroup: // which is a character in hidden text, too
            passGroup();
            return m_switch == Action::Deleted && unseen();
        case Action::ShapePicture:
        case Action::Field:
        case Action::IndexEntry:
        case Action::PassThrough:
        case Action::ShapeGroup:
            return true;
        default:
            return false;
        }
    }

    /// An entry has a line, and no more.
    bool mayEndParagraphs() const { return m_switch == Action::Deleted; }

    bool unseen() {
        m_any = true;
        return m_isUnseen;
    }

    /// Which its group holds for itself.
    static bool isOfParagraph(const ControlWord& word) {
        if (word.action != Action::Keep)
            return word.action >= Action::PlainParagraph && word.action <= Action::ListLevel;
        const KeptLevel level = keptWord(word).level;
        return level == KeptLevel::Paragraph || level == KeptLevel::Border;
    }

    /// Over the rest of the group.
    void passGroup() {
        m_tokenizer.skipGroup();
        m_head.leave();
        leave();
    }

    void leave() {
        if (m_around.empty())
            return;
        m_isUnseen = m_around.back();
        m_around.pop_back();
    }

    Tokenizer m_tokenizer;
    GroupHead m_head{true};
    Action m_switch;
    bool m_isUnseen;
    bool m_any = false;
    std::vector<bool> m_around; ///< the same for the groups that are open
};

} // namespace

bool isLook(const ControlWord& word) {
    if (word.action == Action::Keep)
        return keptWord(word).level == KeptLevel::Characters;
    return word.action >= Action::PlainCharacters && word.action <= Action::CapitalsKind &&
           word.action != Action::Deleted;
}

bool holdsUnseenAlone(QByteArrayView content, UnseenAs as, bool isUnseen) {
    return UnseenTokens(content, as, isUnseen).run();
}

} // namespace orvalis::rtf
