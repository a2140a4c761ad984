// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "unsound.h"

#include "rtf/words/tokenizer.h"

#include <QChar>

#include <vector>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

namespace {

/// Follows the cells and the halves of characters of a file.
class Check {
public:
    QString run(const QByteArray& rtf) {
        rtf::Tokenizer tokenizer(rtf);
        rtf::Token token;
        for (tokenizer.next(token); token.kind != rtf::TokenKind::End && m_found.isEmpty();
             tokenizer.next(token))
            if (token.kind == rtf::TokenKind::GroupStart)
                m_groups.push_back(m_state);
            else if (token.kind == rtf::TokenKind::GroupEnd && !m_groups.empty())
                closeGroup();
            else if (token.kind == rtf::TokenKind::Word && token.word)
                word(token);
            else if (token.kind == rtf::TokenKind::Text)
                text(token.bytes.size());
            else if (token.kind == rtf::TokenKind::Byte)
                text(1);
        if (m_half)
            m_found = u"halves of characters"_s;
        return m_found;
    }

private:
    struct State {
        bool inTable = false;
        int unicodeSkip = 1;
    };

    void closeGroup() {
        m_state = m_groups.back();
        m_groups.pop_back();
    }

    void word(const rtf::Token& token) {
        switch (token.word->action) {
        case rtf::Action::PlainParagraph:
            m_state.inTable = false;
            return;
        case rtf::Action::InTable:
            m_state.inTable = true;
            return;
        case rtf::Action::RowDefaults:
            m_ends = 0;
            return;
        case rtf::Action::CellRight:
            ++m_ends;
            return;
        case rtf::Action::CellEnd:
            if (token.word->value == 0)
                cell();
            return;
        case rtf::Action::RowEnd:
            m_cells = 0;
            return;
        case rtf::Action::UnicodeSkip:
            m_state.unicodeSkip = token.hasParameter ? token.parameter : 1;
            return;
        case rtf::Action::Unicode:
            half(char32_t(token.parameter < 0 ? token.parameter + 0x10000 : token.parameter));
            return;
        default:
            return;
        }
    }

    void cell() {
        if (m_ends == 0)
            m_found = u"cells without a row"_s;
        else if (!m_state.inTable)
            m_found = u"cells outside of a table"_s;
        else if (++m_cells > m_ends)
            m_found = u"more cells than the row has"_s;
    }

    void half(char32_t unit) {
        const bool second = QChar::isLowSurrogate(unit);
        if (second != m_half)
            m_found = u"halves of characters"_s;
        m_half = QChar::isHighSurrogate(unit);
        m_toSkip = m_state.unicodeSkip;
    }

    /// Text between the two halves of a character parts them, but for what stands for the first.
    void text(qsizetype length) {
        if (m_half && length > m_toSkip)
            m_found = u"halves of characters"_s;
        m_toSkip -= length;
    }

    QString m_found;
    State m_state;
    std::vector<State> m_groups; ///< what stands around them
    bool m_half = false;         ///< the first one of a character has come
    qsizetype m_toSkip = 0;
    int m_ends = 0; ///< of cells, that the row tells
    int m_cells = 0;
};

} // namespace

QString unsoundness(const QByteArray& rtf, rtf::Fault fault) {
    if (!rtf.startsWith("{\\rtf") && !rtf.startsWith("{\\urtf"))
        return u"does not begin as RTF"_s;
    switch (fault) {
    case rtf::Fault::UnexpectedEnd:
    case rtf::Fault::UnmatchedBrace:
        return u"braces that do not match"_s;
    case rtf::Fault::TooDeep:
        return u"groups within thousands of others"_s;
    case rtf::Fault::BadBinary:
        return u"data longer than the file"_s;
    default:
        return Check().run(rtf);
    }
}

} // namespace orvalis::likeness
