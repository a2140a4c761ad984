// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

#include <QTextCharFormat>

class QFont;

namespace orvalis::rtf {

/// Formats of characters in RTF as those of a text document, and back.
QTextCharFormat textFormat(const CharFormat& format, const Names& names);
/// \param defaultFont what the document shows where the format says nothing.
CharFormat charFormat(const QTextCharFormat& format, Names& names, const QFont& defaultFont);

} // namespace orvalis::rtf
