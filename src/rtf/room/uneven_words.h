// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QTextBlock;

namespace orvalis::rtf {

class FormatHeights;

/// How much higher the lines of a paragraph may become than their letters need, in pixels. Where a
/// word needs several lines, Qt's layout makes those as high as the highest letter of all the word,
/// wherever that one stands.
double heightLentInWords(const QTextBlock& paragraph, FormatHeights& heights);

} // namespace orvalis::rtf
