// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/field_scan.h"

#include "rtf/characters/whole_characters.h"
#include "rtf/reading/equation_text.h"
#include "rtf/reading/formula_text.h"
#include "rtf/reading/shape_scan.h"
#include "rtf/reading/symbol_field.h"
#include "rtf/reading/unseen_text.h"

#include "rtf/characters/code_page.h"
#include "rtf/words/group_head.h"
#include "rtf/words/tokenizer.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace orvalis::rtf {

namespace {

constexpr qsizetype LongestFieldName = 32;

/// What is said of a field, in the order in which it is kept.
constexpr std::array<QByteArrayView, 4> FieldWords = {"flddirty", "fldedit", "fldlock", "fldpriv"};

/// Whether a paragraph, a cell or a section may end in it.
bool endsAnything(QByteArrayView content) {
    Tokenizer tokenizer(content);
    Token token;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token))
        if (isLineEnd(token) ||
            (token.kind == TokenKind::Word && token.word && endsOrShapes(token.word->action)))
            return true;
    return false;
}

/// The same of a formula, which in a field is kept where it shows nothing.
bool mayEndAnything(QByteArrayView formula) {
    return endsAnything(formula) && (!formulaText(formula).isEmpty() ||
                                     scanShape(formula).shows == ShapeScan::Shows::Picture);
}

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
        for (size_t i = 0; i < FieldWords.size(); ++i)
            if (m_says[i])
                m_scan.words += "\\" + FieldWords[i].toByteArray();
        return m_scan;
    }

private:
    void take(const Token& token) {
        m_scan.hasResult |= m_resultDepth != NoDepth && isCharacters(token) && shown();
        switch (token.kind) {
        case TokenKind::GroupStart:
            m_shown.push_back(shown());
            return;
        case TokenKind::GroupEnd:
            leave();
            return;
        case TokenKind::Word:
            word(token);
            return;
        case TokenKind::Symbol:
            m_scan.hasStructure |= isLineEnd(token) && shown();
            return;
        default:
            return;
        }
    }

    void leave() {
        if (depth() == m_resultDepth)
            m_resultDepth = NoDepth;
        if (depth() == m_innerDepth)
            m_innerDepth = NoDepth;
        if (depth() == m_shapeDepth)
            m_shapeDepth = NoDepth;
        if (depth() == m_deletedDepth)
            m_deletedDepth = NoDepth;
        if (depth() > 0)
            m_shown.pop_back();
    }

    void word(const Token& token) {
        const Action action = token.word ? token.word->action : Action::Version;
        if (m_head.isHead() && (hidesText(action) || (m_head.isStarred() && !token.word))) {
            hidden(action);
            return;
        }
        if (m_head.isHead() && (action == Action::UnicodePair || action == Action::UnicodeHalf))
            m_shown.back() = action == Action::UnicodeHalf;
        if (depth() == 0)
            fieldWord(token);
        if (!shown())
            return;
        m_scan.hasStructure |= endsOrShapes(action);
        switch (action) {
        case Action::Deleted:
            if (!token.hasParameter || token.parameter != 0)
                deleted();
            return;
        case Action::Field:
            if (depth() > 0 && m_innerDepth == NoDepth && m_head.isHead())
                m_innerDepth = depth();
            return;
        case Action::PictureGroup:
        case Action::ShapeGroup:
            m_scan.hasResult |= m_resultDepth != NoDepth;
            if (m_head.isHead())
                figure(token);
            return;
        case Action::PassThrough:
            if (token.bytes == "fldrslt" && m_resultDepth == NoDepth)
                m_resultDepth = depth();
            return;
        default:
            return;
        }
    }

    void fieldWord(const Token& token) {
        const auto found = std::find(FieldWords.begin(), FieldWords.end(), token.bytes);
        if (found != FieldWords.end())
            m_says[size_t(found - FieldWords.begin())] =
                !token.hasParameter || token.parameter != 0;
    }

    /// What a tracked change has taken out ends nothing. The look ahead reads all of its group.
    void deleted() {
        if (m_deletedDepth != NoDepth)
            return;
        m_deletedDepth = depth();
        if (holdsUnseenAlone(m_tokenizer.groupAhead(), UnseenAs::Deleted, true))
            passGroup();
    }

    /// What is kept of it as it came ends nothing of the field.
    void figure(const Token& token) {
        if (isFigure(token)) {
            m_scan.hasStructure |= token.word->action != Action::PictureGroup &&
                                   mayEndAnything(m_tokenizer.groupAhead());
            passGroup();
            return;
        }
        // The look ahead reads all that is in a shape, so those inside are not looked into again.
        if (m_shapeDepth != NoDepth)
            return;
        if (scanShape(m_tokenizer.groupAhead()).shows == ShapeScan::Shows::Nothing)
            passGroup();
        else
            m_shapeDepth = depth();
    }

    /// A group that is no text. The first instruction is that of the field, but for those of fields
    /// that it holds.
    void hidden(Action action) {
        if (action == Action::FieldInstruction && depth() > 0 && m_innerDepth == NoDepth &&
            shown() && !std::exchange(m_hasInstruction, true))
            m_scan.instruction = m_tokenizer.groupAhead();
        passGroup();
    }

    /// Over the rest of the group.
    void passGroup() {
        m_tokenizer.skipGroup();
        m_head.leave();
        leave();
    }

    int depth() const { return int(m_shown.size()) - 1; }
    /// Of a pair for readers of Unicode and for others, its own half is.
    bool shown() const { return m_shown.back(); }

    static constexpr int NoDepth = -1;

    Tokenizer m_tokenizer;
    FieldScan m_scan;
    GroupHead m_head{true};
    std::vector<bool> m_shown{true}; ///< of the groups that are open
    int m_resultDepth = NoDepth;
    int m_innerDepth = NoDepth;   ///< of the field in it that one stands in
    int m_shapeDepth = NoDepth;   ///< the same of a shape
    int m_deletedDepth = NoDepth; ///< the same of text that a tracked change has taken out
    bool m_hasInstruction = false;
    std::array<bool, FieldWords.size()> m_says{};
};

/// The tokens of an instruction, as it is kept, without those of groups in it that are no text.
class InstructionTokens {
public:
    explicit InstructionTokens(QByteArrayView instruction)
        : m_tokenizer(instruction) {}

    void next(Token& token) {
        for (;;) {
            m_tokenizer.next(token);
            m_head.take(token);
            if (token.kind != TokenKind::Word || !m_head.isHead())
                return;
            const bool hides = token.word ? hidesText(token.word->action) : m_head.isStarred();
            if (!hides || std::exchange(m_isFirst, false)) // which is that of the instruction
                return;
            m_tokenizer.skipGroup();
            m_head.leave();
        }
    }

private:
    Tokenizer m_tokenizer;
    GroupHead m_head{false};
    bool m_isFirst = true;
};

} // namespace

FieldScan scanField(QByteArrayView content) {
    return Scan(content).run();
}

QString instructionText(QByteArrayView instruction) {
    const CodePage& page = CodePage::forNumber(Latin1Page);
    InstructionTokens tokens(instruction);
    Token token;
    QString text;
    int toSkip = 0; // the one character for readers that know no other
    for (tokens.next(token); token.kind != TokenKind::End; tokens.next(token)) {
        const bool isBytes = token.kind == TokenKind::Text;
        if (isBytes || token.kind == TokenKind::Byte) {
            const auto bytes = isBytes ? token.bytes : QByteArrayView(&token.byte, 1);
            page.decode(bytes.sliced(toSkip), text);
        }
        toSkip = 0;
        if (token.kind == TokenKind::Symbol && isCharacters(token))
            text += QChar(characterOf(token.byte));
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

QString fieldText(const QString& instruction) {
    QString text = wholeCharacters(equationText(instruction) + symbolFieldText(instruction));
    text.removeIf([](QChar c) { return !standsInLine(c.unicode()); });
    return text;
}

QByteArray fieldName(QByteArrayView instruction) {
    InstructionTokens tokens(instruction);
    Token token;
    for (tokens.next(token); token.kind != TokenKind::End; tokens.next(token)) {
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
