// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/formula_text.h"

#include "rtf/characters/code_page.h"
#include "rtf/characters/symbol_font.h"
#include "rtf/characters/whole_characters.h"
#include "rtf/words/control_words.h"
#include "rtf/words/tokenizer.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

/// Whether a group of this name is none of the text: the properties of each part stand in a group
/// that is named for it, and pictures repeat the whole.
bool isNoPart(const Token& head) {
    const Action action = head.word ? head.word->action : Action::Version;
    return hidesText(action) || action == Action::PictureGroup || head.bytes.endsWith("Pr") ||
           head.bytes == "mmathPict";
}

class Parts {
public:
    explicit Parts(QByteArrayView kept)
        : m_tokenizer(kept) {}

    QString text() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token))
            take(token);
        return wholeCharacters(m_text);
    }

private:
    struct Group {
        bool hidden = false;
        bool hasElement = false; ///< one of several that stand below each other
    };

    void take(const Token& token) {
        const bool atStart = m_atStart;
        m_atStart = token.kind == TokenKind::GroupStart || (atStart && isStar(token));
        switch (token.kind) {
        case TokenKind::GroupStart:
            m_groups.push_back({!m_groups.empty() && m_groups.back().hidden, false});
            return;
        case TokenKind::GroupEnd:
            if (!m_groups.empty())
                m_groups.pop_back();
            return;
        case TokenKind::Word:
            if (atStart)
                head(token);
            if (token.word && token.word->action == Action::Unicode)
                unit(char16_t(token.parameter));
            else if (token.word && token.word->action == Action::Character)
                unit(char16_t(token.word->value));
            m_toSkip = token.word && token.word->action == Action::Unicode ? 1 : 0;
            return;
        case TokenKind::Text:
            bytes(token.bytes);
            return;
        case TokenKind::Byte:
            bytes(QByteArrayView(&token.byte, 1));
            return;
        default:
            return;
        }
    }

    bool isHidden() const { return !m_groups.empty() && m_groups.back().hidden; }

    /// What a part is to the one ahead of it, as people type formulas in one line.
    void head(const Token& token) {
        if (isNoPart(token))
            m_groups.back().hidden = true;
        if (isHidden())
            return;
        if (token.bytes == "mden")
            m_text.append(u'/');
        else if (token.bytes == "msup")
            m_text.append(u'^');
        else if (token.bytes == "msub")
            m_text.append(u'_');
        else if (token.bytes == "me" && m_groups.size() > 1 &&
                 std::exchange((m_groups.end() - 2)->hasElement, true))
            m_text.append(u"; "_s);
    }

    void unit(char16_t unit) {
        // What a font of signs has at its bytes is a sign where it is read, and none here.
        if (standsInLine(unit) && privateByte(unit) == 0 && !isHidden())
            m_text.append(QChar(unit));
    }

    void bytes(QByteArrayView run) {
        const CodePage::Table& table = *CodePage::forNumber(Latin1Page).table();
        for (const char byte : run)
            if (m_toSkip > 0)
                --m_toSkip;
            else
                unit(table[uchar(byte)]);
    }

    Tokenizer m_tokenizer;
    QString m_text;
    std::vector<Group> m_groups; ///< that are open
    bool m_atStart = false;      ///< of a group
    int m_toSkip = 0;            ///< bytes that stand for a character told by its number
};

} // namespace

QString formulaText(QByteArrayView kept) {
    return Parts(kept).text();
}

} // namespace orvalis::rtf
