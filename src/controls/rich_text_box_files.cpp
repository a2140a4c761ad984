// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "runtime/ansi_page.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "runtime/text_file.h"

#include <QFileInfo>
#include <QTextBlockFormat>

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

QString fileKey(const QString& path) {
    return QFileInfo(path).absoluteFilePath();
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
        if (QFileInfo(path).isFile())
            m_unreadable.insert(fileKey(path)); // nobody knows what lies there
        throw *failure;
    }
    if (flags == rtfText) {
        // Indents, bullets and alignment are nothing that a plain file could mean.
        replaceEverything(plainTextOf(bytes, m_plainFile), QTextBlockFormat());
        return;
    }
    if (!rtf::looksLikeRtf(bytes)) {
        if (!bytes.isEmpty())
            m_unreadable.insert(fileKey(path));
        throw RuntimeError(ErrorNumber::InvalidFileFormat);
    }
    if (takeRtf(bytes))
        m_unreadable.remove(fileKey(path));
    else
        m_unreadable.insert(fileKey(path)); // what lies behind the fault is on the disk alone
}

void RichTextBox::SaveFile(const QString& path, int flags) {
    requireFlags(flags);
    QByteArray bytes;
    if (flags == rtfRTF)
        bytes = TextRTF();
    else
        bytes =
            m_plainFile == PlainFile::Ansi ? AnsiPage::ofUser().encode(Text()) : encodeText(Text());
    if (m_unreadable.contains(fileKey(path))) {
        if (!keepUnreadable(path))
            throw RuntimeError(ErrorNumber::PathFileAccessError);
        m_unreadable.remove(fileKey(path));
    }
    saveWhole(path, bytes);
}

} // namespace orvalis
