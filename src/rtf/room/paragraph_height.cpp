// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/paragraph_height.h"

#include "rtf/room/letter_widths.h"

#include <QChar>

#include <algorithm>

namespace orvalis::rtf {

namespace {

/// Of a line whose height is measured, in pixels.
constexpr double HighestMeasured = 256;
/// Of a run of which all is guessed where a part must be.
constexpr qsizetype Piece = 128;

// What a line loses: to pairs of letters that stand further apart than both are wide, and to the
// last letter, which may lean out of it.
constexpr double SpreadOfRoom = 0.02;
constexpr double LeanOfSize = 0.2;
/// A line takes so many letters, or its words are guessed.
constexpr double LettersOfRoom = 4;

double measuredRoom(const LetterHeight& letters, const ParagraphShape& shape) {
    return shape.room * (1 - SpreadOfRoom) - letters.size * LeanOfSize;
}

/// The height of lines that can be measured; 0 where they can't.
double measuredLine(const LetterHeight& letters, const ParagraphShape& shape) {
    if (!letters.widths || measuredRoom(letters, shape) < letters.size * LettersOfRoom)
        return 0;
    const double line = std::max(letters.widths->line() * shape.multiple, shape.least);
    return line <= HighestMeasured ? line : 0;
}

bool parts(QChar c) {
    return c == u'\t' || c == QChar::LineSeparator;
}

constexpr bool isPlainLetter(char16_t c) {
    return char16_t((c | 0x20) - u'a') < 26;
}

/// As breaksBetween(), which most words of most texts need not ask.
bool breaksAt(char16_t ahead, char16_t behind) {
    return (isPlainLetter(ahead) && isPlainLetter(behind)) || breaksBetween(ahead, behind);
}

} // namespace

bool breaksBetween(char16_t ahead, char16_t behind) {
    // Numbers hold what is ahead of them, but letters; opening brackets what follows; and closing
    // ones, and signs that end a clause, what is ahead.
    if (QChar::isLetter(ahead))
        return QChar::isLetterOrNumber(behind) ||
               QStringView(u"\"'(-*+&=#@\u2013\u201c").contains(QChar(behind));
    const bool mayPart =
        QChar::isDigit(ahead) ||
        QStringView(u".,;:!?)\"'\u2013\u2014\u2019\u201d\u2026").contains(QChar(ahead));
    return mayPart && QChar::isLetter(behind);
}

ParagraphHeight::ParagraphHeight(const LetterHeight& mark, const ParagraphShape& shape)
    : m_line(measuredLine(mark, shape)) {
    m_height = m_line > 0 ? shape.margins + m_line : heightOfParagraph(mark, shape);
}

void ParagraphHeight::add(QStringView run, const LetterHeight& letters,
                          const ParagraphShape& shape) {
    const double line = measuredLine(letters, shape);
    if (line == 0) {
        guess(run, letters, shape);
        return;
    }
    const double room = measuredRoom(letters, shape);
    while (!run.isEmpty()) {
        const QStringView piece = run.first(std::min(run.size(), Piece));
        run = run.sliced(piece.size());
        if (!fill(piece, *letters.widths, room, line))
            guess(piece, letters, shape);
    }
}

void ParagraphHeight::addPicture(double height, const LetterHeight& letters,
                                 const ParagraphShape& shape) {
    m_height += heightOfPicture(height, letters, shape);
    m_line = 0;
    m_guessed = {};
}

void ParagraphHeight::guess(QStringView text, const LetterHeight& letters,
                            const ParagraphShape& shape) {
    // A word that goes on in another line takes the height of its highest letters there.
    m_height += m_line + heightOfRun(text, letters, shape);
    // Where only what nobody sees parts two runs they fill the lines that one of both would.
    if (m_guessed.size == letters.size && m_guessed.line == letters.line)
        m_height -= heightOfRun({}, letters, shape);
    m_line = 0;
    m_guessed = {letters.size, letters.line};
}

/// Takes word for word into lines, as the layout does; where that may break a line elsewhere too,
/// it needs no more of them.
/// \returns whether all letters have been measured; else nothing is taken.
bool ParagraphHeight::fill(QStringView text, LetterWidths& widths, double room, double line) {
    // Where nobody knows where the lines end, the text begins one.
    End end = m_line > 0 ? m_end : End{};
    qsizetype lines = 0;
    for (auto at = text.begin(); at != text.end();) {
        const char16_t c = at->unicode();
        if (c == u' ') {
            end.blanks += widths.of(c);
            if (end.blanks > room) { // nobody knows how far they reach out of their line
                ++lines;
                end.blanks = 0;
            }
            ++at;
            continue;
        }
        if (parts(*at)) {
            lines += c == u'\t' ? 2 : 1; // a tab may stand in a line of its own
            end = {};
            ++at;
            continue;
        }
        if (end.blanks > 0) {
            if (breaksAt(end.ahead, c)) {
                end.words += end.word + end.blanks;
                end.word = 0;
            } else {
                end.word += end.blanks;
            }
            end.blanks = 0;
        }
        const auto letters = at;
        double word = end.word;
        for (; at != text.end() && *at != u' '; ++at) {
            const float width = widths.of(at->unicode());
            if (width < 0)
                break;
            word += width;
        }
        if (at == letters)
            return false;
        end.ahead = at[-1].unicode();
        if (end.words > 0 && end.words + word > room) {
            ++lines; // begins with the word
            end.words = 0;
        }
        if (end.words + word <= room) {
            end.word = word;
            continue;
        }
        // A word that is cut; where it can be broken, two lines hold more than one has room for.
        for (auto letter = letters; letter != at; ++letter) {
            const double width = widths.of(letter->unicode());
            end.word += width;
            if (end.word > room) {
                lines += 2;
                end.word = width;
            }
        }
    }
    // A line is as high as its highest letters, and so is the next one where a word goes on in it;
    // and where letters begin in their line shifts their lines by one at most.
    if (m_line != line)
        m_height += 2 * std::max(m_line, line);
    m_line = line;
    m_end = end;
    m_guessed = {};
    m_height += double(lines) * line;
    return true;
}

} // namespace orvalis::rtf
