// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_files.h"

#include "controls/rich_text_box.h"
#include "rtf/reader.h"
#include "rtf/room/document_room.h"
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

/// More bytes than any document has room for, of whichever characters: of a far larger file only
/// its beginning is worth the memory.
constexpr qsizetype MostBytes = qsizetype{4} * rtf::MostCharacters;

QString plainTextOf(QByteArrayView bytes, RichTextFiles::Plain kind) {
    if (kind == RichTextFiles::Plain::Ansi)
        return AnsiPage::ofUser().decode(bytes.first(std::min(MostBytes, bytes.size())));
    QString text = decodeTextStart(bytes, MostBytes);
    if (endsLinesWithLf(text))
        text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return text;
}

void requireFlags(int flags) {
    if (flags != RichTextBox::rtfRTF && flags != RichTextBox::rtfText)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
}

} // namespace

void RichTextFiles::LoadFile(const QString& path, int flags) {
    requireFlags(flags);
    QByteArray bytes;
    if (const auto failure = firstFailure([&] { bytes = readWhole(path); })) {
        noteUnreadable(path); // nobody knows what lies there
        throw *failure;
    }
    if (flags == RichTextBox::rtfText) {
        // Fonts, colours, indents, bullets and alignment are nothing that a plain file could mean.
        if (m_box.replaceEverything(plainTextOf(bytes, m_plain), QTextCharFormat(),
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
    if (m_box.takeRtf(bytes))
        noteReadable(path);
    else
        noteUnreadable(path); // what lies behind the fault is on the disk alone
}

void RichTextFiles::SaveFile(const QString& path, int flags) {
    requireFlags(flags);
    QByteArray bytes;
    if (flags == RichTextBox::rtfRTF)
        bytes = m_box.TextRTF();
    else
        bytes = m_plain == Plain::Ansi ? AnsiPage::ofUser().encode(m_box.Text())
                                       : encodeText(m_box.Text());
    saveWhole(path, bytes);
}

} // namespace orvalis
