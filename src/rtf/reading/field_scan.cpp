// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/field_scan.h"

#include "rtf/characters/code_page.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

#include <utility>

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
        for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token)) {
            m_head.take(token);
            take(token);
        }
        return m_scan;
    }

private:
    void take(const Token& token) {
        m_scan.hasResult |= m_resultDepth != NoDepth && isCharacters(token);
        switch (token.kind) {
        case TokenKind::GroupStart:
            ++m_depth;
            return;
        case TokenKind::GroupEnd:
            if (m_depth == m_resultDepth)
                m_resultDepth = NoDepth;
            if (m_depth == m_innerDepth)
                m_innerDepth = NoDepth;
            --m_depth;
            return;
        case TokenKind::Word:
            word(token);
            return;
        case TokenKind::Symbol:
            m_scan.hasStructure |= token.byte == '\r' || token.byte == '\n';
            return;
        default:
            return;
        }
    }

    void word(const Token& token) {
        const Action action = token.word ? token.word->action : Action::Version;
        if (m_head.isHead() && (hidesText(action) || (m_head.isStarred() && !token.word))) {
            hidden(action);
            return;
        }
        m_scan.hasStructure |= endsOrShapes(action);
        switch (action) {
        case Action::Field:
            if (m_depth > 0 && m_innerDepth == NoDepth && m_head.isHead())
                m_innerDepth = m_depth;
            return;
        case Action::PictureGroup:
        case Action::ShapeGroup:
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

    /// A group that is no text. The first instruction is that of the field, but for those of fields
    /// that it holds.
    void hidden(Action action) {
        if (action == Action::FieldInstruction && m_depth > 0 && m_innerDepth == NoDepth &&
            !std::exchange(m_hasInstruction, true))
            m_scan.instruction = m_tokenizer.groupAhead();
        m_tokenizer.skipGroup();
        m_head.leave();
        --m_depth;
    }

    static constexpr int NoDepth = -1;

    Tokenizer m_tokenizer;
    FieldScan m_scan;
    GroupHead m_head{true};
    int m_depth = 0;
    int m_resultDepth = NoDepth;
    int m_innerDepth = NoDepth; ///< of the field in it that one stands in
    bool m_hasInstruction = false;
};

} // namespace

FieldScan scanField(QByteArrayView content) {
    return Scan(content).run();
}

QString instructionText(QByteArrayView instruction) {
    const CodePage& page = CodePage::forNumber(Latin1Page);
    Tokenizer tokenizer(instruction);
    Token token;
    QString text;
    int toSkip = 0; // the one character for readers that know no other
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        const bool isBytes = token.kind == TokenKind::Text;
        if (isBytes || token.kind == TokenKind::Byte) {
            const auto bytes = isBytes ? token.bytes : QByteArrayView(&token.byte, 1);
            page.decode(bytes.sliced(toSkip), text);
        }
        toSkip = 0;
        if (token.kind != TokenKind::Word || !token.word)
            continue;
        if (token.word->action == Action::Character)
            text += QChar(token.word->value);
        if (token.word->action != Action::Unicode)
            continue;
        text += QChar(char16_t(token.parameter));
        toSkip = 1;
    }
    return text;
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
