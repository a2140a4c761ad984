// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>

namespace orvalis::likeness {

/// Where the text of a page stands on the paper that the file names, in twips.
QRectF textArea(const QByteArray& rtf);

/// Prints a file through the program's own rich text box, on the paper that the file names.
/// \param path of the PDF.
/// \param wideBlanks whether the blanks of a run of them stand as far apart as LibreOffice sets
/// them, which is further than in any other program.
/// \param family of what the file names no font for.
void printOwnPages(const QByteArray& rtf, const QString& path, bool wideBlanks,
                   const QString& family);

/// A file without its headers, footers, and footnotes with their marks, of which the program's
/// pages have none, and with what its fields of dates, names and numbers show as text, which
/// LibreOffice would fill anew; unchanged where there are none.
QByteArray asShown(QByteArray rtf);

/// Whether LibreOffice widened the blanks of runs as it read a file: it puts a sixth of an em ahead
/// of each, in most files.
/// \param text of the file as LibreOffice tells it.
bool widensBlanks(const QByteArray& text);

/// Whether the file has anything that stands beside the run of its text: tables, text boxes, or
/// lines from top to bottom.
bool standsAside(const QByteArray& rtf);

} // namespace orvalis::likeness
