// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats.h"

#include <QTextBlockFormat>
#include <QTextListFormat>

class QTextBlock;
class QTextList;

namespace orvalis::rtf {

/// Labels of lists in RTF as the lists of a text document, and back.
/// \param left indent of the item in twips: one too small for a label gets room on the screen.
QTextListFormat listFormat(const ListLabel& label, int left);
ListLabel labelOf(const QTextList& list);

/// What makes a block an item of a list. A document counts every list from 1, so the labels of
/// those that begin elsewhere are hidden: whoever shows the document draws listLabel() there.
QTextBlockFormat itemFormat(const QTextList& list);
bool hidesLabel(const QTextBlockFormat& item);
/// Takes that back from a block that is to join another list.
void showLabel(QTextBlockFormat& item);
/// The label that an item of a list of numbers has, empty for any other block.
QString listLabel(const QTextBlock& item);

} // namespace orvalis::rtf
