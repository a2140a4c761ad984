// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/kept_character_words.h"
#include "rtf/words/kept_document_words.h"
#include "rtf/words/kept_paragraph_words.h"
#include "rtf/words/kept_section_words.h"
#include "rtf/words/kept_table_words.h"

namespace orvalis::rtf {

namespace detail {

template <size_t... Sizes>
constexpr auto joined(const std::array<KeptEntry, Sizes>&... parts) {
    std::array<ControlWord, (Sizes + ...)> words{};
    size_t at = 0;
    const auto add = [&](const auto& part) {
        for (const KeptEntry& entry : part)
            words[at++] = {entry.name, Action::Keep,
                           packed({entry.level, entry.kind, entry.rivals})};
    };
    (add(parts), ...);
    return words;
}

} // namespace detail

/// The words that a document keeps and does not know. Where several are kept of one thing, they are
/// written in the order of this table.
inline constexpr auto KeptWordTable = detail::joined(
    detail::keptCharacterWords(), detail::keptParagraphWords(), detail::keptBorderWords(),
    detail::keptTableWords(), detail::keptSectionWords(), detail::keptDocumentWords());

} // namespace orvalis::rtf
