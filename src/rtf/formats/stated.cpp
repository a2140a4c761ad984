// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/stated.h"

namespace orvalis::rtf::stated {

namespace {

constexpr int bitUnless(bool usual, int bit) {
    return usual ? 0 : bit;
}

} // namespace

int countedOfCharacters(bool hasStyles, DefaultFont defaultFont) {
    if (hasStyles)
        return Knows | All;
    const bool namesFont = defaultFont == DefaultFont::Unknown || defaultFont == DefaultFont::Named;
    return bitUnless(namesFont, KnowsFont | Font);
}

int countedOfParagraphs(bool hasStyles, bool inLists) {
    return hasStyles || inLists ? ~0 : 0;
}

int by(const CharFormat& format, int counted, int usualFamily) {
    CharFormat usual;
    usual.family = usualFamily;
    return (format.stated & counted) | differences(format, usual);
}

int by(const ParagraphFormat& format, int counted) {
    const int after = format.afterAhead != NoLength ? format.afterAhead : format.after;
    const bool ofShape = format.pageWord == PageWord::OfParagraph;
    return (format.stated & counted) |
           bitUnless(format.alignment == rtf::Alignment::Left && !format.leftIsSaid, Alignment) |
           bitUnless(!format.rightToLeft && !format.leftToRight, Direction) |
           bitUnless(!format.pageBreakBefore || !ofShape, PageBreak) |
           bitUnless(format.left == 0, Left) | bitUnless(format.first == 0, First) |
           bitUnless(format.right == 0, Right) | bitUnless(format.before == 0, Before) |
           bitUnless(after == 0, After) | bitUnless(format.lineSpacing == 0, LineSpacing);
}

int differences(const CharFormat& a, const CharFormat& b) {
    return bitUnless(a.family == b.family, Font) | bitUnless(a.halfPoints == b.halfPoints, Size) |
           bitUnless(a.color == b.color, Color) |
           bitUnless(a.highlight == b.highlight && a.shading == b.shading, Highlight) |
           bitUnless(a.bold == b.bold, Bold) | bitUnless(a.italic == b.italic, Italic) |
           bitUnless(a.strike == b.strike && a.doubleStrike == b.doubleStrike, Strike) |
           bitUnless(a.underline == b.underline, Underline) |
           bitUnless(a.script == b.script, Script) | bitUnless(a.raise == b.raise, Raise) |
           bitUnless(a.capitals == b.capitals, Capitals) |
           bitUnless(a.spacing == b.spacing, Spacing) | bitUnless(a.hidden == b.hidden, Hidden);
}

int leftOut(int stated) {
    const int known = bitUnless((stated & KnowsFont) == 0, Font) |
                      bitUnless((stated & KnowsLook) == 0, All & ~Font);
    return known & ~stated;
}

} // namespace orvalis::rtf::stated
