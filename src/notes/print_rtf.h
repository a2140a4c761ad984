// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <QRect>

namespace orvalis {

class Printer;
class RichTextBox;

/// The margins of a printed page, in twips from the edges of the sheet.
struct PrintMargins {
    qint32 left = 1440;
    qint32 top = 1440;
    qint32 right = 1440;
    qint32 bottom = 1440;
};

/// Where text goes on a page, in twips from the corner of the printable area: the sheet without its
/// margins, moved by what the printer cannot reach at its left and upper edge.
QRect printArea(const Printer& printer, const PrintMargins& margins);

/// Prints a whole text in pages of these margins, which give way on a sheet so small that they
/// leave it no room.
/// \param progress hears how much of it is laid out and printed.
/// \throws RuntimeError PrinterError where there is no printer, or it gives up; the job is left as
/// it stands then.
void printPages(RichTextBox& box, Printer& printer, const PrintMargins& margins,
                const rtf::Progress& progress = {});

} // namespace orvalis
