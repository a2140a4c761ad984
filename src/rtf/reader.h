// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/progress.h"

#include <QByteArrayView>

class QTextCursor;
class QTextDocument;

namespace orvalis::rtf {

class MetafileConverter;
class Sink;

/// What is wrong with a file.
enum class Fault {
    None,
    NotRtf,         ///< it does not begin as RTF; nothing was read
    UnexpectedEnd,  ///< it ends inside a group
    UnmatchedBrace, ///< a brace closes more than was opened
    GoesOn,         ///< further RTF stands behind the brace that closes the file; it was not read
    TooDeep,        ///< groups nest deeper than is remembered; deeper ones share one state
    BadBinary,      ///< binary data claim to be longer than the file
    BadPicture,     ///< a picture's data are not what they claim
    TooLarge,       ///< it holds more than a document can show; text or fonts were left out
};

/// How a reading went. Whatever stands before and behind a fault was read as far as possible.
struct ReadResult {
    Fault fault = Fault::None; ///< the first one met
    qsizetype position = 0;    ///< where it was met, in bytes from the start

    bool ok() const { return fault == Fault::None; }
};

struct ReadOptions {
    MetafileConverter* metafiles = nullptr; ///< draws vector metafiles; without it they stay boxes
    /// Whether what is inserted becomes all that the document holds: then what the file says of the
    /// whole document holds for it too. Reading into a document always means that.
    bool replacesDocument = false;
    Progress progress = {}; ///< hears how much of the bytes is read
};

/// Whether the bytes begin as RTF does: "{\rtf" or "{\urtf", behind nothing but blanks, line ends,
/// zeros or a byte-order mark, which may stand behind the brace too.
bool looksLikeRtf(QByteArrayView bytes);

/// Tells the sink what the bytes hold. Bytes that do not look like RTF are not read at all.
ReadResult readRtf(QByteArrayView bytes, Sink& sink, const Progress& progress = {});

/// Replaces the document's content and drops its undo history. The paragraph mark that ends the
/// last paragraph makes no further, empty paragraph. On Fault::NotRtf the document is untouched.
ReadResult readRtf(QByteArrayView bytes, QTextDocument& document, const ReadOptions& options = {});

/// Replaces the cursor's selection, as one step of undo, and leaves the cursor behind what was
/// inserted. Exactly one closing paragraph mark is dropped. On Fault::NotRtf nothing changes.
ReadResult insertRtf(QByteArrayView bytes, QTextCursor& cursor, const ReadOptions& options = {});

} // namespace orvalis::rtf
