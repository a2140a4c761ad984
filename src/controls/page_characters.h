// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QTextDocument;

namespace orvalis {

/// Puts in the document what stands on a page in place of some of its characters, one for each: a
/// blank at which no line breaks for a blank behind an opening bracket, as that begins no end of a
/// line, and a sign without a width for each control character, for which a font has at most a box
/// that says so.
void setPageCharacters(QTextDocument& document);

} // namespace orvalis
