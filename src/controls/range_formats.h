// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCharFormat>

#include <vector>

class QTextCursor;
class QTextDocument;

namespace orvalis {

/// A format for a part of a document.
struct RangeFormat {
    int start; ///< position in the document
    int end;   ///< the position behind it
    QTextCharFormat format;
};

/// More than a document has of what is set for the page alone: whoever gathers ranges ends there.
inline constexpr size_t MostRanges = 20'000;

/// Sets gathered formats in one edit of the document.
/// \param set what does it with the selection of a cursor.
void setFormats(QTextDocument& document, const std::vector<RangeFormat>& ranges,
                void (QTextCursor::*set)(const QTextCharFormat&));

} // namespace orvalis
