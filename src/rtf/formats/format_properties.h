// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextFormat>

namespace orvalis::rtf {

/// What RTF knows of a format and Qt's own properties have no place for. Whoever copies or merges
/// formats keeps them by itself; the writer reads them.
enum FormatProperty : int {
    /// Of an image format: the picture's own bytes (QByteArray), written again as they are.
    PictureSource = QTextFormat::UserProperty + 0x5100,
    /// Of an image format: what these bytes are, a PictureKind (int).
    PictureSourceKind,
    /// Of an image format: width, height, map mode, bits per pixel, planes and bytes per row as the
    /// file gave them (QVariantList of int), for the kinds that cannot be read without.
    PictureSourceSize,
    /// Of an image format: true where the image only stands for a picture that cannot be drawn.
    PictureIsBox,
    /// Of an image format: the metafile that the file has for readers which cannot draw the
    /// picture,
    /// as this one cannot (QByteArray).
    PictureFallback,
    /// Of an image format: the picture is hidden, and this the size in pixels at which it would
    /// show
    /// (QSizeF). It takes no room.
    HiddenPictureSize,
    /// Of a character format: an Underline that Qt shows as a single line (int).
    UnderlineKind,
    /// Of a character format: the text is hidden, and this its colour (int, an RGB value with the
    /// alpha byte set, 0 for the automatic one). It is drawn in nothing and takes no width.
    HiddenText,
    /// Of a list item's block format: its first line's indent in twips (int), where its label
    /// begins. textIndent is that of the text behind the label.
    ParagraphFirstIndent,
    /// Of a list item's block format: where its label begins, in twips from its text (int).
    LabelOffset,
    /// Of a list format: the number of its first item (int, 1 when absent).
    ListStart,
    /// Of a character format: twips between the characters (int), which the letter spacing shows
    /// unless the text is hidden.
    CharacterSpacing,
    /// Of a character format: the strike is a double line (bool).
    DoubleStrike,
    /// Of a character format: the background is the characters' shading (bool).
    CharacterShading,
    /// Of a character format: words of RTF that are kept as they came (QString, see kept_text.h).
    KeptOfCharacters,
    /// Of a block format: the same.
    KeptOfParagraph,
    /// Of a block format: a section begins with the paragraph, and this is what the file says of it
    /// (QString, the same).
    KeptOfSection,
    /// Of a list format: what follows its labels (int, a LabelFollow, Tab when absent).
    ListLabelFollow,
    /// Of a list format: which side of its labels stands at the hanging indent (int, a LabelSide,
    /// Left when absent).
    ListLabelSide,
    /// Of a list format: the stop behind its labels in twips from the margin (int).
    ListLabelTab,
    /// Of a block format: the tab stops as the file has them, where those that are shown differ
    /// (QVariantList of int: position in twips from the margin, type, leader).
    ParagraphTabs,
    /// Of a block format: the leaders of the stops that are shown (QVariantList of int, each a
    /// TabLeader).
    ShownTabLeaders,
    /// Of a block format: twips by which the paragraph stands further right than its file has it,
    /// so that nothing of it is left of the margin (int).
    ParagraphOverhang,
    /// Of a character format: what is kept of the place behind the last character of the run, a
    /// footnote say (QString, a number that no other has, U+0003, and the same). A run that is
    /// typed
    /// on to takes it along to its end; of a run that is parted the last part has it.
    KeptAnchors,
    /// Of a block format: the same, ahead of the paragraph's first character.
    KeptAtStart,
    /// Of a block format: the space after the paragraph that the file told ahead of its text, where
    /// it told another one behind it (int, twips).
    SpaceAfterAhead,
    /// Of a block format that begins a page: how the file tells of that (int, a PageWord,
    /// OfParagraph when absent).
    PageBreakWord,
    /// Of a character format: the tab ends a cell of a table, and this shapes the paragraph in it
    /// (QString, the same).
    CellShape,
    /// Of a block format: what a file says of the row that the paragraph is of (QString, the same).
    /// Its cells are written as such where all of them are there, as text with tabs otherwise.
    TableRow,
    /// Of a block format: the paragraph stands in a text box, and this is the frame of it, with a
    /// word where its text goes (QString, its number, U+0003 and the same). Adjoining paragraphs of
    /// one value stand in one box. A frame may hold several texts and pictures, each with a word
    /// and paragraphs of its own.
    KeptBox,
    /// Of such a format: which of these the paragraph is of (int, counted from 0, which it is when
    /// absent).
    BoxPlace,
    /// Of such a format: the box belongs to the paragraph behind it, not to the one ahead (bool).
    BoxAhead,
    /// Of a block format: the paragraph goes on that stands ahead of the box (bool). It means
    /// nothing where no box stands ahead.
    GoesOnBehindBox,
    /// Of an image format: the frame of the shape that is the picture (QString, as that of a box,
    /// but without a number).
    PictureFrame,
    /// Of an image format: how the file crops the picture, which is shown whole, and the group of
    /// its properties (QString, the same).
    PictureWords,
    /// Of a block format: the row begins with the paragraph (bool).
    RowBegins,
    /// Of such a format: an item of a list, behind which the row was left without an end (bool).
    RowStaysOpen,
    /// Of such a format: how deep the table is nested that the paragraph is of (int, 2 and more; of
    /// the row's own when absent).
    TableNesting,
    /// Of such a format: a row of a nested table ends with the paragraph, or with the last one of
    /// several with one value (QString, its number, U+0003, how many cells it has, U+0003 and the
    /// group that shapes it).
    NestedRow,
    /// Of a character format: the field that shows the text (QString, its number, U+0003 and its
    /// instruction as it is kept). Adjoining runs of one value are one field. Of a field that its
    /// instruction alone shows, or of a shape in a cell, U+0003 and the text follow: where that is
    /// changed, the field is not written, but the text of a shape that has one, whose frame stands
    /// ahead of that U+0003 behind U+0007.
    KeptField,
    /// Of a character format: the file tells the text by the Unicode numbers of its characters,
    /// though its font is one of signs (bool).
    SignsByNumber,
    /// Of a character format: what the file says of it (int, bits of stated). What has a value that
    /// is not the default is said in any case.
    StatedOfCharacters,
    /// Of a block format: the same.
    StatedOfParagraph,
    /// Of a block format: how the paragraph's mark looks, where that tells of a tracked change, or
    /// is other than the text of a list item, and so its label in many programs (QString, the
    /// same).
    ParagraphMark,
    /// Of a list format: how the file tells of the list (int, a ListSource, Made when absent).
    ListToldBy,
    /// Of a list format: the list in the file's list table, and its override (QString, the number
    /// in the file, U+0003 and the group as it is kept), and the level (int).
    KeptList,
    KeptListOverride,
    KeptListLevel,
    /// Of a character format with a link: what its field says beside the target (QString, the
    /// switches of a `HYPERLINK` with a blank ahead of each).
    LinkSwitches,
};

} // namespace orvalis::rtf
