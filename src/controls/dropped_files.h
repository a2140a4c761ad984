// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCharFormat>

class QMimeData;
class QTextCursor;

namespace orvalis {

/// Replaces the selection by files of this computer, as a file manager offers them, one a line: a
/// picture by itself, any other file by its path, in the format given.
/// \returns false, and leaves the text as it is, where no such files are offered.
bool takeFiles(const QMimeData& data, QTextCursor& selection, const QTextCharFormat& plain);

} // namespace orvalis
