// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <memory>

class QFont;
class QTextBlockFormat;
class QTextCharFormat;

namespace orvalis::rtf {

class LetterWidths;

// How high a document can become at most, told from its text and formats without laying it out.
//
// Qt's layout takes a document without pages for one page of 2^23 pixels. Where the heights add up
// to more, it looks for the next page for ever. So no document is let grow beyond seven eighths of
// that, as told by a sum that goes up with each character, run and paragraph. Ordinary text is
// broken into lines with the widths of its letters (paragraph_height.h). Of any other is guessed:
//
//   a line     1.5 times the size of its letters, and what they are raised; at least the spacing
//              that the paragraph names, times the multiple of it;
//   a run      a line for each line that its characters need, and one more. A character is taken
//              for two thirds as wide as its size, in scripts with wide letters for twice that
//              size, and for a line where it may be wider still; tabs and line breaks are a line
//              each. Where words are not cut, two lines hold more than the width of one;
//   a picture  a line of its own height and that of the letters beside it;
//   a paragraph  its margins, and a line.
//
// The width is that of the narrowest box of the program, less the paragraph's own indents. What is
// guessed counts one and three quarters times, for fonts with high lines and for texts of capitals.

/// The width of the narrowest box, in pixels.
inline constexpr double NarrowestBox = 150;
/// The height at which a layout does not end, in pixels.
inline constexpr double EndlessHeight = 1 << 23;
/// The largest sum of heights of a document, in pixels.
inline constexpr double MostHeight = EndlessHeight * 7 / 8;
/// The largest font and the largest distance that a letter is raised, in points.
inline constexpr double LargestPoints = 1638;

/// The letters of a run, in pixels.
struct LetterHeight {
    double size = 0; ///< of which their widths are shares; more than theirs where they are wider
    double line = 0; ///< that they need
    std::shared_ptr<LetterWidths> widths = {}; ///< none where a format keeps them from being known
};

/// What a paragraph does to the height of its lines.
struct ParagraphShape {
    double room = 0; ///< width of its lines in pixels
    double multiple = 1;
    double least = 0;   ///< of a line, in pixels
    double margins = 0; ///< above and below, in pixels
};

/// By the size alone.
LetterHeight letterHeight(const QTextCharFormat& format, const QFont& defaultFont);
/// With the widths of the letters.
LetterHeight measuredHeight(const QTextCharFormat& format, const QFont& defaultFont);
ParagraphShape paragraphShape(const QTextBlockFormat& format);

/// A shape in which no text is lower than in either of two.
ParagraphShape higherShape(const ParagraphShape& one, const ParagraphShape& other);

/// Of a line that holds these letters.
double heightOfLine(const LetterHeight& letters, const ParagraphShape& shape);
/// The lines in which a run is guessed to stand.
double linesOfRun(QStringView text, const LetterHeight& letters, const ParagraphShape& shape);
/// Of those lines, as they count.
double heightOfRun(QStringView text, const LetterHeight& letters, const ParagraphShape& shape);
/// Of a paragraph of which no text has been counted, whose mark has this size.
double heightOfParagraph(const LetterHeight& mark, const ParagraphShape& shape);
/// Of a line that holds a picture of this height beside letters.
double heightOfPicture(double height, const LetterHeight& letters, const ParagraphShape& shape);

/// The number nearest below \a length at which no pair of surrogates is parted.
qsizetype wholeCharacters(QStringView text, qsizetype length);

} // namespace orvalis::rtf
