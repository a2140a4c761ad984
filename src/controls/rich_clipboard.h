// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCharFormat>

#include <memory>

class QMimeData;
class QTextCursor;

namespace orvalis {

/// What a document gives to and takes from the clipboard and the pointer.

/// The selection as RTF under each name that programs look for, as HTML and as plain text.
std::unique_ptr<QMimeData> clipboardData(const QTextCursor& selection, const QString& plain);

bool canTake(const QMimeData& data);

/// Replaces the selection by the best of what is offered: RTF, a picture that comes alone, files,
/// HTML, plain text (in the format given), a picture. \returns whether there was anything to take.
bool takeClipboard(const QMimeData& data, QTextCursor& selection, const QTextCharFormat& plain);

} // namespace orvalis
