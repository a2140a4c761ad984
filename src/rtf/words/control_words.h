// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <bit>

namespace orvalis::rtf {

/// What a control word asks for. The table gives many words the same action with another value.
enum class Action : quint8 {
    // Document
    Version,
    Utf8Version,
    AnsiCodePage,
    FixedCodePage, ///< value: the page
    DefaultFont,
    FurtherDefaultFont, ///< value: which of those beside it
    DefaultTab,
    DefaultLanguage,
    ViewKind,
    // Text
    Character, ///< value: the character
    Unicode,
    UnicodeSkip,
    ParagraphEnd,
    SectionEnd,
    PageEnd,
    CellEnd,
    RowEnd,
    RowDefaults,
    CellRight,
    InTable,
    TableNesting,
    Binary,
    // Characters
    PlainCharacters,
    Font,
    FurtherFont, ///< of a bullet
    FontSize,
    Color,
    Highlight, ///< value: 1 for the shading of the characters
    Bold,
    Italic,
    Strike,       ///< value: 1 for a double line
    Spacing,      ///< value: twips to each of the number
    ControlMarks, ///< our own word: what other programs show as marks we know as codes
    Hidden,
    Deleted,       ///< text that a tracked change has taken out
    UnderlineKind, ///< value: the Underline
    NoUnderline,
    ScriptKind,   ///< value: the Script
    Raise,        ///< value: 1 up, -1 down
    CapitalsKind, ///< value: the Capitals
    // Paragraphs
    PlainParagraph,
    Align, ///< value: the Alignment
    LeftIndent,
    FirstIndent,
    RightIndent,
    SpaceBefore,
    SpaceAfter,
    LineSpacing,
    LineMultiple,
    TabKind,       ///< value: the QTextOption::TabType
    TabLeaderKind, ///< value: the TabLeader
    TabPosition,
    Direction, ///< value: 1 right to left
    PageBreakBefore,
    ListOverride, ///< of a paragraph, or the number of an entry of the override table
    ListLevel,
    // What is kept as it came
    Keep, ///< value: a packed KeptWord
    SectionDefaults,
    SectionColumn, ///< value: the ColumnWord
    AnchorMark,    ///< stands for a number or a date that others show
    // Destinations whose text is none of the document's
    SkipGroup,
    Generator,
    KeepGroup, ///< value: the KeptPlace
    FontTable,
    ColorTable,
    ListTable,
    ListOverrideTable,
    FieldInstruction,
    ShapeInstruction,
    ShapeProperty,
    ShapePropertyName,
    ShapePropertyValue,
    Numbering,
    NumberingTextBefore,
    NumberingTextAfter,
    ListLevelText,
    FontPlainName,
    LabelText,
    // Destinations whose text it is, or which have none
    PictureGroup,
    ShapePicture,
    NoShapePicture,
    Field,
    IndexEntry,  ///< text for an index or a table of contents, and for the document unless hidden
    NestedTable, ///< says what a row inside a cell is
    PassThrough, ///< an ignorable group whose content is shown
    UnicodePair,
    UnicodeHalf,
    ShapeGroup, ///< value: the ShapeKind
    ShapeText,
    // Inside the font and colour tables
    FontKind,
    FontDirections,
    FontPitch,
    FontCharset,
    FontCodePage,
    Red,
    Green,
    Blue,
    ColorTheme, ///< where the colour comes from
    // Inside the list tables
    List,
    ListOverrideEntry,
    ListOverrideLevel,
    ListIdentity,
    ListLevelEntry,
    ListLevelKind,
    ListLevelStart,
    ListLevelFollow,
    ListLevelSide,
    // Inside \pn
    NumberingBullet,
    NumberingBody,
    NumberingLevel,
    NumberingContinued,
    NumberingKind, ///< value: the ListKind
    NumberingStart,
    NumberingSide, ///< value: the LabelSide
    // Inside \pict
    PictureSource, ///< value: the PictureKind
    PictureWidth,
    PictureHeight,
    PictureGoalWidth,
    PictureGoalHeight,
    PictureScaleX,
    PictureScaleY,
    PictureNumber, ///< kept, and nothing more
    BitmapBits,
    BitmapPlanes,
    BitmapRow,
};

/// What is kept as a shape is, around what it shows.
enum class ShapeKind : quint8 {
    Shape,
    Formula, ///< which only its picture shows
    Object,  ///< of another program, which its result shows
};

/// Whether a word at the head of a group says what the group is for.
constexpr bool isDestination(Action action) {
    return action >= Action::SkipGroup && action <= Action::ShapeText;
}
/// Whether the text of a group with this head is none of the document's.
constexpr bool hidesText(Action head) {
    return head >= Action::SkipGroup && head <= Action::LabelText;
}

/// Whether a group with this head has a purpose that no later word in it changes.
constexpr bool ownsGroup(Action head) {
    return hidesText(head) || head == Action::PictureGroup || head == Action::UnicodePair ||
           head == Action::UnicodeHalf || head == Action::ShapeText || head == Action::List ||
           head == Action::ListOverrideEntry;
}
/// Whether a group with this head, in a shape, tells of more than of the shape.
constexpr bool tellsOfDocument(Action head) {
    const bool isOfShape = head >= Action::ShapeInstruction && head <= Action::ShapePropertyValue;
    return hidesText(head) && head != Action::SkipGroup && !isOfShape;
}

/// Whether a word ends something of the document, or shapes its rows.
constexpr bool endsOrShapes(Action action) {
    return action >= Action::ParagraphEnd && action <= Action::CellRight;
}

struct ControlWord {
    QByteArrayView name;
    Action action = Action::Version;
    int value = 0;
};

inline constexpr quint32 ControlWordHashStart = 0;

/// Adds a letter to the hash of a word. It is cheap, as each letter of a file waits for the one
/// ahead; whoever looks the hash up spreads its bits.
constexpr quint32 controlWordHash(quint32 hash, uchar letter) {
    return std::rotl(hash, 5) ^ letter;
}

/// The place of a word among those that are kept.
int keptOrder(const ControlWord& word);

/// The entry of a word, null when nobody knows it.
/// \param hash made of all the name's letters by controlWordHash().
const ControlWord* findControlWord(QByteArrayView name, quint32 hash);

} // namespace orvalis::rtf
