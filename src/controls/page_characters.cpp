// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/page_characters.h"

#include "rtf/characters/control_marks.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <vector>

namespace orvalis {
namespace {

/// Has no width, and is in more fonts than others that have none.
constexpr char16_t Unseen = 0x200d;

struct Replacement {
    int position;
    QChar character;
};

bool followsBracket(const QString& text, qsizetype at) {
    return text[at] == u' ' && at > 0 && text[at - 1].category() == QChar::Punctuation_Open;
}

} // namespace

void setPageCharacters(QTextDocument& document) {
    constexpr size_t Most = 20'000; // more than a document of text has
    std::vector<Replacement> replacements;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        for (qsizetype at = 0; at < text.size() && replacements.size() < Most; ++at) {
            const int position = block.position() + int(at);
            if (rtf::needsMark(text[at].unicode()))
                replacements.push_back({position, QChar(Unseen)});
            else if (followsBracket(text, at))
                replacements.push_back({position, QChar(QChar::Nbsp)});
        }
    }
    QTextCursor edit(&document);
    edit.beginEditBlock();
    for (const auto& [position, character] : replacements) {
        edit.setPosition(position);
        edit.setPosition(position + 1, QTextCursor::KeepAnchor);
        edit.insertText(character, edit.charFormat());
    }
    edit.endEditBlock();
}

} // namespace orvalis
