// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

#include <QTextBlockFormat>

namespace orvalis::rtf {

// Where the lines of a paragraph begin and its tabs lead.
//
// RTF counts tab stops from the margin of the page, takes a hanging indent for one of them, and
// behind the last of them goes on in even steps. A text document counts them from the beginning of
// the first line, and knows no other. So the stops that it is given are made of all of these, and
// the file's own stand in a property beside them, from which they are written again.

/// The label of a list item, in twips.
struct LabelSize {
    int width = 0;
    int blank = 0; ///< width of a blank in the same font
};

/// Sets indents and tab stops, for the direction that the format says. What would begin outside the
/// margin, and so not be seen, moves inwards with the whole paragraph.
/// \param defaultTab twips between the stops behind the last one.
/// \param label of a list item: where it is longer than its room the text begins behind it.
void placeParagraph(QTextBlockFormat& block, const ParagraphFormat& format, int defaultTab,
                    LabelSize label = {});

/// How far a paragraph was moved inwards to be seen, in twips.
int overhangOf(const QTextBlockFormat& block);
/// Takes that back, where there is a page around the margin.
void standAcrossMargin(QTextBlockFormat& block);

/// Where the label of a list item begins, in twips from the beginning of its text; ahead of it, to
/// whichever side that is, where it is below 0.
int labelOffset(const QTextBlockFormat& item);

/// The tab stops of a paragraph as its file has them.
/// \param start where its first line begins, in twips from the margin.
QList<TabStop> tabStopsOf(const QTextBlockFormat& block, int start);

/// What fills the space of a tab that leads to one of the shown stops.
/// \param position in pixels from the beginning of the line, where the tab begins.
TabLeader leaderBehind(const QTextBlockFormat& block, double position);

} // namespace orvalis::rtf
