// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/entry_scan.h"

#include "rtf/reading/field_scan.h"
#include "rtf/words/tokenizer.h"

#include <algorithm>
#include <array>

namespace orvalis::rtf {

namespace {

/// What is said of an entry, in the order in which it is kept.
constexpr std::array<QByteArrayView, 5> EntryWords = {"xef", "bxe", "ixe", "tcf", "tcl"};

} // namespace

EntryScan scanEntry(QByteArrayView content) {
    EntryScan scan;
    scan.hasStructure = scanField(content).hasStructure;
    std::array<QByteArray, EntryWords.size()> told;
    Tokenizer tokenizer(content);
    Token token;
    for (tokenizer.next(token);
         token.kind == TokenKind::Word || token.kind == TokenKind::GroupStart;
         tokenizer.next(token)) {
        const auto found = std::find(EntryWords.begin(), EntryWords.end(), token.bytes);
        if (token.kind == TokenKind::GroupStart)
            tokenizer.skipGroup();
        else if (found != EntryWords.end())
            told[size_t(found - EntryWords.begin())] = spelled(token);
    }
    for (const QByteArray& word : told)
        scan.words += word;
    return scan;
}

} // namespace orvalis::rtf
