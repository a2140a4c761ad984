// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QTextBlock>
#include <QTextLine>

#include <functional>

class QTextDocument;

namespace orvalis {

/// A part of a line of a document that is laid out.
struct VisibleLine {
    QTextBlock block;
    QTextLine line;
    int from = 0; ///< characters of the block that stand in sight; of lines of usual length all
    int to = 0;
    QString text; ///< these characters
};

/// Hands over the lines that an area touches. A paragraph can have more lines than a thousand
/// windows, and a line more characters; what is out of sight costs next to nothing.
/// \param wanted whether a block is to be looked at at all.
void visitVisibleLines(const QTextDocument& document, const QRectF& area,
                       const std::function<bool(const QTextBlock&)>& wanted,
                       const std::function<void(const VisibleLine&)>& visit);

} // namespace orvalis
