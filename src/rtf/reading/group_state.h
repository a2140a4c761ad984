// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/code_page.h"
#include "rtf/formats/formats.h"

#include <limits>

namespace orvalis::rtf {

struct ControlWord;

/// Where the text of a group goes.
enum class Destination : quint8 {
    Body,
    FontTable,
    PlainFontName,
    ColorTable,
    ListTable,
    ListOverrideTable,
    LevelText,
    Picture,
    FieldInstruction,
    UnicodePair,
    Shape,
    ShapePropertyValue,
    Numbering,
    NumberingTextBefore,
    NumberingTextAfter,
    Label,
};

inline constexpr int NoList = -1;
inline constexpr int NoFont = std::numeric_limits<int>::min(); // which no word can name

/// What text of one direction has for itself.
struct Side {
    int font = NoFont;
    int halfPoints = DefaultHalfPoints;
    bool bold = false;
    bool italic = false;
    const ControlWord* eastern = nullptr; ///< the word for its script, where that is one
    int stated = 0;
    int said = 0; ///< bits of stated: what was told of this direction alone
};

/// What a closing brace restores.
struct GroupState {
    CharFormat chars;
    ParagraphFormat paragraph;
    const CodePage* page = nullptr;
    SymbolFont symbols = SymbolFont::None; ///< that the font is
    int font = NoFont; ///< number in the font table; none stands for the default font
    int fontsVersion = 0;
    Side other;   ///< text of the other direction
    Side told;    ///< what the kept words say of that
    int said = 0; ///< of text of this direction
    bool rightToLeft = false;
    bool named = false;  ///< the direction is
    bool parted = false; ///< the two directions are told apart
    int unicodeSkip = 1;
    int listOverride = NoList;
    int listLevel = 0;
    int fieldsAround = 0;
    int entriesAround = 0;       ///< of an index or a table of contents
    int ownField = NothingKept;  ///< the field that the group is, with the text that shows it
    int fieldHead = NothingKept; ///< of a field that is the outer part of a shape
    int box = NothingKept;       ///< the frame of the text box that the group is, or stands in
    int ownBox = NothingKept;    ///< the same, of the shape that the group is
    int frame = NothingKept;     ///< of the shape that shows a picture
    int keptOfChars = 0;         ///< sets of m_kept
    int keptOfParagraph = 0;
    const ControlWord* border = nullptr;  ///< the one that was named last
    const ControlWord* script = nullptr;  ///< the same
    const ControlWord* eastern = nullptr; ///< the word for it, where the text is of the east
    QTextOption::TabType tabType = QTextOption::LeftTab;
    TabLeader tabLeader = TabLeader::None;
    Destination destination = Destination::Body;
    bool ownsDestination = false;
    bool tellsPlain = false; ///< by itself
    bool deleted = false;
    bool inDeleted = false; ///< the group, or one around it, has such text
    bool inTable = false;
    bool nested = false; ///< words for rows are of a table in a cell
    bool inShape = false;
    bool inFormula = false;
    bool inObject = false;
    bool fallback = false; ///< pictures are other forms of the one that came last
};

} // namespace orvalis::rtf
