// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/field_scan.h"

#include "rtf/tokenizer.h"

namespace orvalis::rtf {

namespace {

constexpr qsizetype LongestFieldName = 32;

/// Reads the tokens of a field once, with an eye on which of its two groups they stand in.
class Scan {
public:
    explicit Scan(QByteArrayView content)
        : m_tokenizer(content) {}

    FieldScan run() {
        Token token;
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token))
            take(token);
        return m_scan;
    }

private:
    void take(const Token& token) {
        switch (token.kind) {
        case TokenKind::GroupStart:
            ++m_depth;
            return;
        case TokenKind::GroupEnd:
            if (m_depth-- == m_resultDepth)
                m_resultDepth = NoDepth;
            return;
        case TokenKind::Word:
            word(token);
            return;
        case TokenKind::Text:
        case TokenKind::Byte:
            m_scan.hasResult |= m_resultDepth != NoDepth;
            return;
        default:
            return;
        }
    }

    void word(const Token& token) {
        if (!token.word)
            return;
        switch (token.word->action) {
        case Action::FieldInstruction:
            if (m_resultDepth == NoDepth && m_scan.instruction.isEmpty())
                instruction();
            return;
        case Action::ParagraphEnd:
        case Action::SectionEnd:
        case Action::PageEnd:
        case Action::CellEnd:
        case Action::RowEnd:
        case Action::RowDefaults:
            m_scan.hasStructure |= m_resultDepth != NoDepth;
            return;
        case Action::Character:
        case Action::Unicode:
        case Action::PictureGroup:
            m_scan.hasResult |= m_resultDepth != NoDepth;
            return;
        case Action::PassThrough:
            if (token.bytes == "fldrslt" && m_resultDepth == NoDepth)
                m_resultDepth = m_depth;
            return;
        default:
            return;
        }
    }

    void instruction() {
        m_scan.instruction = m_tokenizer.groupAhead();
        m_tokenizer.skipGroup();
        --m_depth;
    }

    static constexpr int NoDepth = -1;

    Tokenizer m_tokenizer;
    FieldScan m_scan;
    int m_depth = 0;
    int m_resultDepth = NoDepth;
};

} // namespace

FieldScan scanField(QByteArrayView content) {
    return Scan(content).run();
}

QByteArray fieldName(QByteArrayView instruction) {
    Tokenizer tokenizer(instruction);
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        if (token.kind != TokenKind::Text)
            continue;
        const QByteArrayView text =
            token.bytes.first(std::min(token.bytes.size(), LongestFieldName)).trimmed();
        if (!text.isEmpty())
            return text.first(text.contains(' ') ? text.indexOf(' ') : text.size())
                .toByteArray()
                .toUpper();
    }
    return {};
}

} // namespace orvalis::rtf
