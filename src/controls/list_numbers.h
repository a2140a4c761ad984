// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTextDocumentLayout>

class QPainter;

namespace orvalis {

/// Draws the numbers of the lists that do not begin at 1, where the document itself draws those of
/// the others, and looking like them.
/// \param painter with the document's origin at its own.
/// \param context as the document was drawn with; its clip must not be empty.
void drawListNumbers(QPainter& painter, const QTextDocument& document,
                     const QAbstractTextDocumentLayout::PaintContext& context);

} // namespace orvalis
