// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTextCharFormat;
class QTextCursor;

namespace orvalis {

/// Replaces the selection by HTML, reduced to what a document of ours holds: paragraphs, runs and
/// pictures that the HTML itself carries. Cells of a table become text with tabs between; nothing
/// is fetched from disk or net. Text without a font of its own takes that of \a base.
/// \returns false and changes nothing where the HTML holds no text and no picture.
bool insertHtml(QTextCursor& selection, const QString& html, const QTextCharFormat& base);

} // namespace orvalis
