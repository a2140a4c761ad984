// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTextDocumentLayout>

class QPainter;
class QTextDocument;

namespace orvalis {

/// Draws the dots, or whatever else fills the space of tabs, over a document that is drawn.
void drawTabLeaders(QPainter& painter, const QTextDocument& document,
                    const QAbstractTextDocumentLayout::PaintContext& context);

} // namespace orvalis
