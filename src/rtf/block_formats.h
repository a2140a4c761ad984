// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats.h"

#include <QTextBlockFormat>
#include <QTextListFormat>

class QTextBlock;
class QTextList;

namespace orvalis::rtf {

/// Formats of paragraphs and lists in RTF as those of a text document, and back.
/// Leaves the list out: that is an object of the document.
QTextBlockFormat blockFormat(const ParagraphFormat& format);
/// \param left indent of the item in twips: one too small for a label gets room on the screen.
QTextListFormat listFormat(const ListLabel& label, int left);
/// What makes a block an item of a list. A document counts every list from 1, so the labels of
/// those that begin elsewhere are hidden: whoever shows the document draws listLabel() there.
QTextBlockFormat itemFormat(const QTextList& list);
bool hidesLabel(const QTextBlockFormat& item);
/// Takes that back from a block that is to join another list.
void showLabel(QTextBlockFormat& item);
/// The label that an item of a list of numbers has, empty for any other block.
QString listLabel(const QTextBlock& item);

/// \param list of the block, null for none.
/// \param indentWidth pixels of one step of the indents of lists and blocks.
ParagraphFormat paragraphFormat(const QTextBlockFormat& format, const QTextList* list,
                                double indentWidth);

} // namespace orvalis::rtf
