// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;

namespace orvalis {

/// Makes a line hold a title: line breaks that are pasted or dropped into it become blanks, and a
/// text that does not fit shows its beginning once the user has left it.
void makeTitleLine(QLineEdit& line);

/// The first half of it alone, and for what the user brings in: a text that the program sets keeps
/// its breaks.
void keepEditsToOneLine(QLineEdit& line);

} // namespace orvalis
