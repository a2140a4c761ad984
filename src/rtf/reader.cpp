// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"

#include "rtf/reading/document_sink.h"
#include "rtf/reading/interpreter.h"
#include "rtf/room/document_room.h"

#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

constexpr ReadResult NotRtf{Fault::NotRtf, 0};

// What stands behind the blanks that may be in front of a file and inside its first brace.
qsizetype startOfGroup(QByteArrayView bytes) {
    qsizetype at = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    while (at < bytes.size()) {
        const char c = bytes[at];
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n' && c != '\0')
            break;
        ++at;
    }
    return at;
}

// Buffers of other programs, and files that a crash has left longer than they were written, are
// filled up with zeros. Where the last brace is missing they would count as text.
QByteArrayView withoutPadding(QByteArrayView bytes) {
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    return bytes;
}

ReadResult readInto(QByteArrayView bytes, DocumentSink& sink, const Progress& progress) {
    const ReadResult result = readRtf(bytes, sink, progress);
    return result.ok() && sink.leftOut() ? ReadResult{Fault::TooLarge, bytes.size()} : result;
}

} // namespace

bool looksLikeRtf(QByteArrayView bytes) {
    QByteArrayView start = bytes.sliced(startOfGroup(bytes));
    if (!start.startsWith('{'))
        return false;
    start = start.sliced(1);
    start = start.sliced(startOfGroup(start));
    return start.startsWith("\\rtf") || start.startsWith("\\urtf");
}

ReadResult readRtf(QByteArrayView bytes, Sink& sink, const Progress& progress) {
    if (!looksLikeRtf(bytes))
        return NotRtf;
    const qsizetype start = startOfGroup(bytes);
    ReadResult result = Interpreter(withoutPadding(bytes.sliced(start)), sink, progress).run();
    if (!result.ok())
        result.position += start;
    return result;
}

ReadResult readRtf(QByteArrayView bytes, QTextDocument& document, const ReadOptions& options) {
    if (!looksLikeRtf(bytes))
        return NotRtf;
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    document.clear();
    DocumentRoom& room = DocumentRoom::of(document);
    room.forget();
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    ReadOptions whole = options;
    whole.replacesDocument = true;
    DocumentSink sink(cursor, whole, bytes.size());
    const ReadResult result = readInto(bytes, sink, options.progress);
    // All that came has been counted; told of it again, the room would have to count the whole
    // document at the first key.
    const double counted = room.sum();
    cursor.endEditBlock();
    room.setSum(counted);
    // Only now is it known how the lines of long words are to be broken; to set the tabs lays the
    // document out.
    QTextOption option = document.defaultTextOption();
    const double tabs = sink.defaultTabTwips() / TwipsPerPixel;
    if (option.tabStopDistance() != tabs) {
        option.setTabStopDistance(tabs);
        document.setDefaultTextOption(option);
    }
    document.setUndoRedoEnabled(undo);
    return result;
}

ReadResult insertRtf(QByteArrayView bytes, QTextCursor& cursor, const ReadOptions& options) {
    if (!looksLikeRtf(bytes))
        return NotRtf;
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const double tabs = cursor.document()->defaultTextOption().tabStopDistance();
    DocumentSink sink(cursor, options, bytes.size(),
                      std::max(1, int(std::lround(tabs * TwipsPerPixel))));
    const ReadResult result = readInto(bytes, sink, options.progress);
    cursor.endEditBlock();
    return result;
}

} // namespace orvalis::rtf
