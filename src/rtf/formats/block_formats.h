// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

#include <QTextBlockFormat>

class QTextList;

namespace orvalis::rtf {

/// Formats of paragraphs in RTF as those of a text document, and back.
/// Leaves the list out: that is an object of the document.
/// \param defaultTab twips between the tab stops that every paragraph has.
QTextBlockFormat blockFormat(const ParagraphFormat& format, const Names& names, int defaultTab);

/// \param list of the block, null for none.
/// \param indentWidth pixels of one step of the indents of lists and blocks.
ParagraphFormat paragraphFormat(const QTextBlockFormat& format, const QTextList* list,
                                double indentWidth, Names& names);

} // namespace orvalis::rtf
