// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/words/kept_words.h"

#include <array>

namespace orvalis::rtf::detail {

// Words that take each other's place.
enum Rivals : quint8 {
    None,
    Widows,
    Emphasis,
    BorderStyle,
    CharacterPattern,
    ParagraphPattern,
    RowPattern,
    CellPattern,
    RawCellPattern,
    SectionBreak,
    PageNumber,
    VerticalAlign,
    LineNumber,
    FootnotePlace,
    EndnotePlace,
    FootnoteStart,
    EndnoteStart,
    FootnoteNumber,
    EndnoteNumber,
    PageChapter,
    PageCount,
    TextFlow,
    SectionDirection,
    RowAlign,
    RowDirection,
    CellAlign,
    CellFlow,
    RunDirection,
};

struct KeptEntry {
    QByteArrayView name;
    KeptLevel level;
    KeptKind kind;
    Rivals rivals = None;
};

} // namespace orvalis::rtf::detail
