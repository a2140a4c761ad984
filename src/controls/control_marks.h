// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <QString>
#include <QStringView>

class QTextBlock;
class QTextCharFormat;
class QTextCursor;

namespace orvalis {

/// How plain characters stand in a document.
///
/// A document cannot hold every character: a lone CR or LF would break the line, and a control
/// character would be there unseen. Each of them is put in as a mark that shows, in a run whose
/// format says that marks stand for codes (rtf::ControlMarks); so a mark that somebody really
/// typed stays what it is.

/// Inserts plain text at the cursor in the format given: CR LF breaks the paragraph, U+2028 the
/// line, and control characters become marks.
/// \param progress hears how much of the text is in.
/// \returns whether all of it had room; where it had not, the beginning came in.
bool insertPlain(QTextCursor& cursor, QStringView text, const QTextCharFormat& format,
                 const rtf::Progress& progress = {});

/// Appends the plain characters of a part of a block, \a from and \a to counted from its start:
/// marks become codes, a line break inside the paragraph CR LF, a picture a blank.
void appendPlain(QString& plain, const QTextBlock& block, int from, int to);

/// Appends the plain characters of a document's raw ones, of which no format is known.
/// \returns false, with part of them appended, when there are marks among them, which only the
/// format can tell from typed ones.
bool appendWithoutMarks(QString& plain, QStringView raw);

} // namespace orvalis
