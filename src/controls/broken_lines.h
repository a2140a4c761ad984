// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QTextDocument;

namespace orvalis {

/// Makes the lines of justified paragraphs that a line break ends as wide as the others, as word
/// processors do where a file asks for it: the room between their words becomes wider. The document
/// is laid out; what is changed is to be laid out again in the same dots.
void fillBrokenLines(QTextDocument& document);

} // namespace orvalis
