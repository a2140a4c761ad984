// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formula_text.h"

#include "rtf/code_page.h"
#include "rtf/control_words.h"
#include "rtf/tokenizer.h"

#include <vector>

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
        // Halves of characters are none.
        return QString::fromUtf8(m_text.toUtf8());
    }

private:
    void take(const Token& token) {
        const bool atStart = m_atStart;
        m_atStart = token.kind == TokenKind::GroupStart ||
                    (atStart && token.kind == TokenKind::Symbol && token.byte == '*');
        switch (token.kind) {
        case TokenKind::GroupStart:
            m_hidden.push_back(!m_hidden.empty() && m_hidden.back());
            return;
        case TokenKind::GroupEnd:
            if (!m_hidden.empty())
                m_hidden.pop_back();
            return;
        case TokenKind::Word:
            if (atStart && isNoPart(token))
                m_hidden.back() = true;
            else if (token.word && token.word->action == Action::Unicode)
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

    /// What has no width by itself, or structure of its own, is no part of a line.
    void unit(char16_t unit) {
        const bool shown = unit >= u' ' && unit != QChar::ObjectReplacementCharacter &&
                           unit != QChar::LineSeparator && unit != QChar::ParagraphSeparator;
        if (shown && (m_hidden.empty() || !m_hidden.back()))
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
    std::vector<bool> m_hidden; ///< the groups that are open
    bool m_atStart = false;     ///< of a group
    int m_toSkip = 0;           ///< bytes that stand for a character told by its number
};

} // namespace

QString formulaText(QByteArrayView kept) {
    return Parts(kept).text();
}

} // namespace orvalis::rtf
