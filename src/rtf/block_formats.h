// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats.h"

#include <QTextBlockFormat>
#include <QTextListFormat>

class QTextList;

namespace orvalis::rtf {

/// Formats of paragraphs and lists in RTF as those of a text document, and back.
/// Leaves the list out: that is an object of the document.
QTextBlockFormat blockFormat(const ParagraphFormat& format);
/// \param left indent of the item in twips: one too small for a label gets room on the screen.
QTextListFormat listFormat(const ListLabel& label, int left);

/// \param list of the block, null for none.
/// \param indentWidth pixels of one step of the indents of lists and blocks.
ParagraphFormat paragraphFormat(const QTextBlockFormat& format, const QTextList* list,
                                double indentWidth);

} // namespace orvalis::rtf
