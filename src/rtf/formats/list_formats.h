// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

#include <QTextBlockFormat>
#include <QTextListFormat>

class QTextBlock;
class QTextList;

namespace orvalis::rtf {

/// Labels of lists in RTF as the lists of a text document, and back.
QTextListFormat listFormat(const ListLabel& label);
ListLabel labelOf(const QTextList& list);

/// What makes a block an item of a list. A document counts every list from 1, and hangs labels
/// left of the text whatever their place; so they are hidden, and whoever shows the document draws
/// shownLabel() where labelOffset() tells.
QTextBlockFormat itemFormat(const QTextList& list);
void hideLabel(QTextBlockFormat& item);
bool hidesLabel(const QTextBlockFormat& item);
/// Takes that back from a block that is to join another list.
void showLabel(QTextBlockFormat& item);
/// The text ahead of a number or behind it, without what the list tables have no room for.
QString cleanLabel(QString text);
/// The label with a number.
QString labelText(const ListLabel& label, int number);
/// The label of an item, empty for a block that is none.
QString shownLabel(const QTextBlock& item);
/// The label that an item of a list of numbers has, empty for any other block.
QString listLabel(const QTextBlock& item);

} // namespace orvalis::rtf
