// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/room/layout_height.h"

#include <QStringView>

namespace orvalis::rtf {

/// How high a paragraph becomes at most in the narrowest box, told run by run.
///
/// Text of ordinary letters in lines of ordinary height is broken into lines as the layout will
/// do it, with the widths that its fonts have. Any other is guessed, as layout_height.h tells.
class ParagraphHeight {
public:
    /// Of text that goes on in a paragraph which has been counted, wherever in its line.
    ParagraphHeight() = default;
    /// Of a paragraph without text, whose mark has this size.
    ParagraphHeight(const LetterHeight& mark, const ParagraphShape& shape);

    double height() const { return m_height; }
    void add(QStringView run, const LetterHeight& letters, const ParagraphShape& shape);
    void addPicture(double height, const LetterHeight& letters, const ParagraphShape& shape);

private:
    /// Where the text ends in its line.
    struct End {
        // In pixels: behind the words that are whole, and what has come of one that may go on.
        double words = 0;
        double word = 0;
        double blanks = 0;
        char16_t ahead = 0; ///< of the blanks
    };

    void guess(QStringView text, const LetterHeight& letters, const ParagraphShape& shape);
    bool fill(QStringView text, LetterWidths& widths, double room, double line);

    double m_height = 0;
    double m_line = 0; ///< height of the lines at the end; 0 where nobody knows where they end
    End m_end;
    LetterHeight m_guessed; ///< of the text at the end; no size where that is not guessed
};

/// Whether a line can be broken, for certain, at blanks between two characters.
bool breaksBetween(char16_t ahead, char16_t behind);

} // namespace orvalis::rtf
