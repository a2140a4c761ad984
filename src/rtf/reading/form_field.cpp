// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/form_field.h"

#include "rtf/characters/code_page.h"
#include "rtf/words/tokenizer.h"

#include <QStringList>

#include <algorithm>

namespace orvalis::rtf {

namespace {

/// The text of the group that a tokenizer stands in.
QString textOfGroup(QByteArrayView group) {
    QString text;
    Tokenizer tokenizer(group);
    Token token;
    bool fallback = false;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        QByteArrayView bytes;
        if (token.kind == TokenKind::Text)
            bytes = token.bytes;
        else if (token.kind == TokenKind::Byte)
            bytes = QByteArrayView(&token.byte, 1);
        else if (token.kind == TokenKind::Word && token.word &&
                 token.word->action == Action::Unicode)
            text += QChar(char16_t(token.parameter));
        CodePage::forNumber(Latin1Page).decode(bytes.sliced(fallback && !bytes.isEmpty()), text);
        fallback = bytes.isEmpty() && token.kind == TokenKind::Word;
    }
    return text;
}

/// Whether text is shown and written as it stands, wherever it does.
bool isPlain(const QString& text) {
    constexpr qsizetype LongestEntry = 255;
    return text.size() <= LongestEntry && text.isValidUtf16() &&
           std::all_of(text.begin(), text.end(), [](QChar c) {
               return (c.isPrint() || c.isSurrogate()) && c != QChar::LineSeparator &&
                      c != QChar::ParagraphSeparator && c != QChar::ObjectReplacementCharacter;
           });
}

} // namespace

QString chosenEntry(QByteArrayView instruction) {
    constexpr int Unchosen = 25;
    constexpr qsizetype MostEntries = 256; // more than a form can have
    Tokenizer tokenizer(instruction);
    Token token;
    QStringList entries;
    int chosen = Unchosen;
    int first = 0;
    for (tokenizer.next(token); token.kind != TokenKind::End; tokenizer.next(token)) {
        if (token.kind != TokenKind::Word)
            continue;
        if (token.bytes == "ffl" && entries.size() < MostEntries)
            entries << textOfGroup(tokenizer.groupAhead());
        else if (token.bytes == "ffres")
            chosen = token.parameter;
        else if (token.bytes == "ffdefres")
            first = token.parameter;
    }
    const QString entry = entries.value(chosen == Unchosen ? first : chosen);
    return isPlain(entry) ? entry : QString();
}

} // namespace orvalis::rtf
