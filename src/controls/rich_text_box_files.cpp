// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "runtime/ansi_page.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "runtime/text_file.h"
#include "runtime/unreadable_files.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include <algorithm>

// Documents in files.

namespace orvalis {
namespace {

/// Whether a text was written where lines end with LF alone. Scrambled text, which may hold an LF
/// as a code like any other, holds other control characters too.
bool endsLinesWithLf(QStringView text) {
    return text.contains(u'\n') &&
           std::none_of(
               text.begin(), text.end(),
               [](QChar c) {
                   return (c < u' ' && c != u'\n' && c != u'\t' && c != u'\f') || c == u'\x7F';
               });
}

QString plainTextOf(QByteArrayView bytes, RichTextBox::PlainFile kind) {
    if (kind == RichTextBox::PlainFile::Ansi)
        return AnsiPage::ofUser().decode(bytes);
    QString text = decodeText(bytes);
    if (endsLinesWithLf(text))
        text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return text;
}

void requireFlags(int flags) {
    if (flags != RichTextBox::rtfRTF && flags != RichTextBox::rtfText)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
}

} // namespace

void RichTextBox::LoadFile(const QString& path, int flags) {
    requireFlags(flags);
    QByteArray bytes;
    if (const auto failure = firstFailure([&] { bytes = readWhole(path); })) {
        noteUnreadable(path); // nobody knows what lies there
        throw *failure;
    }
    if (flags == rtfText) {
        // Fonts, colours, indents, bullets and alignment are nothing that a plain file could mean.
        if (replaceEverything(plainTextOf(bytes, m_plainFile), QTextCharFormat(),
                              QTextBlockFormat()))
            noteReadable(path);
        else
            noteUnreadable(path); // what had no room is on the disk alone
        return;
    }
    if (!rtf::looksLikeRtf(bytes)) {
        if (!bytes.isEmpty())
            noteUnreadable(path);
        throw RuntimeError(ErrorNumber::InvalidFileFormat);
    }
    if (takeRtf(bytes))
        noteReadable(path);
    else
        noteUnreadable(path); // what lies behind the fault is on the disk alone
}

void RichTextBox::SaveFile(const QString& path, int flags) {
    requireFlags(flags);
    QByteArray bytes;
    if (flags == rtfRTF)
        bytes = TextRTF();
    else
        bytes =
            m_plainFile == PlainFile::Ansi ? AnsiPage::ofUser().encode(Text()) : encodeText(Text());
    saveWhole(path, bytes);
}

} // namespace orvalis
