// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "pdf_words.h"

#include <QSet>

namespace orvalis::likeness {

/// So many of so many characters, or words.
struct Share {
    qint64 alike = 0;
    qint64 all = 0;

    Share& operator+=(const Share& other);
    double perCent() const { return all == 0 ? 100.0 : 100.0 * double(alike) / double(all); }
};

struct Likeness {
    Share font;
    Share size;
    Share weight;
    Share color;
    Share place; ///< on the same page, within two points

    Likeness& operator+=(const Likeness& other);
};

/// Of the characters of one PDF, those that another has alike; what it lacks is not.
Likeness compare(const PdfText& expected, const PdfText& found);

/// Of the words of the first page, those whose left edge is within six points of where it is to be.
/// How far down they stand is not looked at, but words that are alike follow each other in the same
/// order; what the one has at the foot of its page the other may have on the next. Bullets count as
/// one sign, and so do a bracket and its mirror, and a sign and the letter of its code, as PDFs
/// tell them in different ways. Leaders of tabs, control characters, and words in the scripts for
/// which few machines have a font, with what is behind them on the line, do not count.
/// \param labels of list items that the file tells. Where one of these stands in place of another
/// one, ahead of the same text, it counts as alike.
/// \param miss a word that is not, for whoever looks for the cause.
/// \param top,bottom of the text in points; what stands above and below them does not count.
Share compareLeftEdges(const PdfText& expected, const PdfText& found, double top, double bottom,
                       const QSet<QString>& labels, QString& miss);

/// Text without what readers set differently: runs of blanks, and marks without a width.
QString folded(QString text);

} // namespace orvalis::likeness
