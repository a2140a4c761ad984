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
void printOwnPages(const QByteArray& rtf, const QString& path);

/// Whether the file has anything that stands beside the run of its text: tables, text boxes, or
/// lines from top to bottom.
bool standsAside(const QByteArray& rtf);

} // namespace orvalis::likeness
