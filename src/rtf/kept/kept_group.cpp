// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_group.h"

#include "rtf/characters/symbol_font.h"
#include "rtf/kept/kept_text.h"
#include "rtf/words/hex.h"
#include "rtf/words/kept_words.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr size_t MostKeptGroups = 4096;

// Which editing session typed it: of use to who compares versions of a file, and as long as the
// text itself.
bool isSessionMark(QByteArrayView word) {
    return word.endsWith("rsid");
}

/// Whether a symbol is no character and stays where it is: a formula, or a further level of an
/// entry of the index.
bool isCopiedMark(uchar symbol) {
    return symbol == '|' || symbol == ':';
}

} // namespace

GroupKeeper::GroupKeeper(QByteArrayView content, const FileTables& tables)
    : m_tokenizer(content)
    , m_tables(tables) {
    m_state.unicodeSkip = tables.unicodeSkip;
    plain();
}

void GroupKeeper::beginIn(const CodePage& page, SymbolFont symbols) {
    m_state.page = &page;
    m_state.symbols = symbols != SymbolFont::None;
}

QString GroupKeeper::kept(QByteArrayView opening, QByteArrayView word, qsizetype limit) {
    constexpr qsizetype UsualGroup = 128; // bytes
    m_out.reserve(UsualGroup);
    m_out.structure(opening);
    m_out.word(word);
    Token token;
    for (m_tokenizer.next(token); token.kind != TokenKind::End; m_tokenizer.next(token)) {
        m_head.take(token);
        take(token);
        if (m_out.bytes().size() > limit || m_groups.size() > MostKeptGroups)
            return {};
    }
    flushPending();
    while (!m_groups.empty())
        closeGroup();
    m_out.structure("}");
    return QString::fromUtf8(m_out.bytes());
}

void GroupKeeper::take(const Token& token) {
    switch (token.kind) {
    case TokenKind::GroupStart:
        openGroup();
        return;
    case TokenKind::GroupEnd:
        closeGroup();
        return;
    case TokenKind::Text:
        bytes(token.bytes);
        return;
    case TokenKind::Byte:
        bytes(QByteArrayView(&token.byte, 1));
        return;
    case TokenKind::Zero:
        bytes(" ");
        return;
    case TokenKind::Word:
        flushPending();
        word(token);
        return;
    case TokenKind::Symbol:
        if (isCharacters(token) || isLineEnd(token) || isCopiedMark(token.byte))
            flushPending();
        symbol(token.byte);
        return;
    case TokenKind::Binary:
        flushPending();
        if (m_fallbackToSkip > 0)
            --m_fallbackToSkip;
        else if (m_state.inPicture)
            m_out.text(QString::fromLatin1(token.bytes.toByteArray().toHex()));
        return;
    case TokenKind::End:
        return;
    }
}

void GroupKeeper::openGroup() {
    flushPending();
    m_fallbackToSkip = 0;
    m_groups.push_back(m_state);
    m_state.picture = false;
    m_out.structure("{");
}

void GroupKeeper::closeGroup() {
    flushPending();
    m_fallbackToSkip = 0;
    if (m_groups.empty())
        return;
    m_out.structure("}");
    m_state = m_groups.back();
    m_groups.pop_back();
}

void GroupKeeper::word(const Token& token) {
    const Action action = token.word ? token.word->action : Action::Version;
    if (action != Action::Character)
        m_fallbackToSkip = 0;
    switch (action) {
    case Action::Unicode:
        if (m_state.picture) // which has digits alone, behind a character too
            return;
        unicode(toldCharacter(token));
        m_fallbackToSkip = m_state.unicodeSkip;
        return;
    case Action::UnicodeSkip:
        m_state.unicodeSkip = std::clamp(token.hasParameter ? token.parameter : 1, 0, 255);
        return;
    case Action::Character:
        if (m_fallbackToSkip > 0)
            --m_fallbackToSkip;
        else
            copy(token);
        return;
    case Action::Font:
    case Action::FurtherFont:
        selectFont(token);
        return;
    case Action::PlainCharacters:
        copy(token);
        plain();
        return;
    case Action::Utf8Version:
    case Action::AnsiCodePage:
    case Action::FixedCodePage:
    case Action::DefaultFont:
    case Action::FurtherDefaultFont:
    case Action::DefaultTab:
    case Action::DefaultLanguage:
        // They tell of the file that this is copied from.
    case Action::ListOverride:
    case Action::ListLevel:
    case Action::ListIdentity:
        // The lists of the file are numbered anew by those of its text.
    case Action::Binary:
        // It comes as a word only where it has no data.
        return;
    case Action::PictureGroup:
        m_state.picture |= m_head.isHead();
        m_state.inPicture |= m_state.picture;
        copy(token);
        return;
    default:
        break;
    }
    if (action == Action::Keep && keptWord(*token.word).kind == KeptKind::Font) {
        selectFont(token);
        return;
    }
    // Its bytes stand as those of a picture do.
    m_state.inPicture |= token.bytes == "objdata" && m_head.isHead();
    const bool isColor = action == Action::Color || action == Action::Highlight ||
                         (action == Action::Keep && keptWord(*token.word).kind == KeptKind::Color);
    if (isColor) {
        m_out.word(spelled(token));
        const bool known = token.parameter >= 0 && token.parameter < m_tables.colors.size();
        m_out.word(keptColor(known ? m_tables.colors[token.parameter] : AutomaticColor).toUtf8());
    } else if (m_head.isStarred() || !isSessionMark(token.bytes)) {
        copy(token);
    }
}

void GroupKeeper::copy(const Token& token) {
    if (token.hasParameter)
        m_out.word(spelled(token), token.parameter);
    else
        m_out.word(spelled(token));
}

/// A word, with the star that counts for it: where the word is left out the star is, too.
QByteArray GroupKeeper::spelled(const Token& token) const {
    return (m_head.isStarred() ? "\\*\\" : "\\") + token.bytes.toByteArray();
}

void GroupKeeper::selectFont(const Token& token) {
    const FontTable::Font* font =
        token.hasParameter ? m_tables.fonts.find(token.parameter) : nullptr;
    // In a font that is missing some readers show what they show in none other.
    if (token.hasParameter && !font) {
        m_out.word(spelled(token), NoSuchFont);
        if (token.word->action == Action::Font)
            plain();
    }
    if (!font || font->family == NoName)
        return;
    const QString family = m_tables.names.familyAt(font->family);
    m_out.word(spelled(token));
    m_out.word(keptFont(family).toUtf8());
    if (token.word->action != Action::Font)
        return;
    m_state.page = font->page ? font->page : &m_tables.page;
    m_state.symbols = font->symbols != SymbolFont::None;
}

/// Text behind it is of the file's default font.
void GroupKeeper::plain() {
    m_state.page = &m_tables.usualPage;
    m_state.symbols = m_tables.usualSymbols != SymbolFont::None;
}

void GroupKeeper::symbol(uchar character) {
    const char word[] = {'\\', char(character)};
    switch (character) {
    case '~':
    case '-':
    case '_':
        if (m_fallbackToSkip > 0)
            --m_fallbackToSkip;
        else
            m_out.structure(QByteArrayView(word, 2));
        return;
    case '\t':
        if (m_fallbackToSkip > 0)
            --m_fallbackToSkip;
        else
            m_out.word("\\tab");
        return;
    case '\r':
    case '\n':
        m_out.word("\\par");
        return;
    default:
        if (isCopiedMark(character))
            m_out.structure(QByteArrayView(word, 2));
    }
}

void GroupKeeper::unicode(char32_t character) {
    // Characters end the head of a group, however they are told. As a blank it would not.
    if (character <= u' ' && m_head.isHead() && !m_state.picture)
        number(char16_t(character));
    else
        text(QChar::fromUcs4(character));
}

void GroupKeeper::number(char16_t unit) {
    m_out.word("\\u", qint16(unit));
    m_out.structure("?");
}

void GroupKeeper::bytes(QByteArrayView run) {
    // Blanks between the star and its word.
    if (m_head.hasStar())
        return;
    const auto skipped = std::min<qsizetype>(m_fallbackToSkip, run.size());
    m_fallbackToSkip -= int(skipped);
    run = run.sliced(skipped);
    if (m_state.picture)
        pictureBytes(run);
    else if (m_state.page->table()) // where each byte is a character
        decode(run);
    else
        m_pending.append(run);
}

void GroupKeeper::pictureBytes(QByteArrayView run) {
    QString digits;
    for (const char byte : run)
        if (hexDigit(uchar(byte)) >= 0)
            digits.append(QLatin1Char(byte));
    m_out.text(digits);
}

void GroupKeeper::flushPending() {
    if (!m_pending.isEmpty())
        decode(std::exchange(m_pending, {}));
}

void GroupKeeper::decode(QByteArrayView run) {
    if (m_state.symbols) {
        // What the font shows for its bytes is its own affair.
        for (const char byte : run)
            if (const auto code = uchar(byte); code < 0x80)
                text(QString(QLatin1Char(byte)));
            else
                m_out.code(code);
        return;
    }
    QString decoded;
    if (m_state.page->decode(run, decoded) < run.size())
        decoded.append(QChar::ReplacementCharacter);
    text(decoded);
}

void GroupKeeper::text(QStringView text) {
    // A picture has digits alone.
    if (m_state.picture)
        return;
    // Codes below a blank are numbers, in the labels of lists. A tab may be a blank ahead of the
    // word that says what its group is, which it would not be as a word of its own.
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at;
        while (end < text.size() && text[end] >= u' ' &&
               text[end] != QChar::ObjectReplacementCharacter)
            ++end;
        m_out.text(text.sliced(at, end - at));
        if (end == text.size())
            return;
        if (text[end] == u'\t')
            m_out.structure("\t");
        else if (text[end] < u' ')
            m_out.code(uchar(text[end].unicode()));
        else // which no text of the document has
            number(text[end].unicode());
        at = end + 1;
    }
}

} // namespace orvalis::rtf
