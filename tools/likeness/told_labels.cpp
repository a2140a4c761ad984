// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "told_labels.h"

#include "rtf/words/tokenizer.h"

namespace orvalis::likeness {

namespace {

QString plainText(QByteArrayView group) {
    rtf::Tokenizer tokenizer(group);
    rtf::Token token;
    QByteArray text;
    for (tokenizer.next(token); token.kind != rtf::TokenKind::End; tokenizer.next(token))
        if (token.kind == rtf::TokenKind::Text)
            text += token.bytes;
        else if (token.kind == rtf::TokenKind::Byte)
            text += char(token.byte);
    return QString::fromLatin1(text).trimmed();
}

} // namespace

QSet<QString> toldLabels(const QByteArray& rtf) {
    QSet<QString> labels;
    for (const QByteArray start : {"{\\listtext", "{\\pntext"})
        for (qsizetype at = rtf.indexOf(start); at >= 0; at = rtf.indexOf(start, at)) {
            at += start.size();
            const QByteArrayView rest = QByteArrayView(rtf).sliced(at);
            labels.insert(plainText(rtf::Tokenizer(rest).groupAhead()));
        }
    labels.remove(QString());
    return labels;
}

} // namespace orvalis::likeness
