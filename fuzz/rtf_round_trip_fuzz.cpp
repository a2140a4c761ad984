// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"
#include "rtf/room/document_height.h"
#include "rtf/room/layout_height.h"
#include "rtf/writer.h"

#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace orvalis::rtf;

namespace {

void require(bool held, const char* promise, const QByteArray& written) {
    if (held)
        return;
    std::fprintf(stderr, "broken: %s, of\n%s\n", promise, written.constData());
    std::abort();
}

/// What is in a document is written so that it reads back as the same, and is then written with the
/// same bytes.
/// \param mayBeFull the text may be longer than there is room for, as by a change.
void requireRoundTrip(const QTextDocument& document, bool mayBeFull) {
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    const ReadResult read = readRtf(written, again);
    if (mayBeFull && read.fault == Fault::TooLarge)
        return;
    require(read.ok(), "what is written can be read", written);
    require(again.toRawText() == document.toRawText(), "the text stays", written);
    require(writeRtf(again) == written, "it is written the same again", written);
}

/// How high lines are is guessed run by run, and some runs differ in what is not written alone:
/// when that has been read they are one, for which the guess may be a little higher.
bool isNearlyFull(const QTextDocument& document) {
    constexpr double Share = 0.99;
    return documentHeight(document) > Share * MostHeight;
}

/// Changes one letter, whose place the length of the file decides.
/// \returns false for a text without any.
bool changeLetter(QTextDocument& document, std::size_t length) {
    const QString text = document.toRawText();
    QList<int> letters;
    for (int at = 0; at < text.size(); ++at)
        if (text[at].isLetter())
            letters.push_back(at);
    if (letters.isEmpty())
        return false;
    QTextCursor cursor(&document);
    cursor.setPosition(letters[qsizetype(length % std::size_t(letters.size()))]);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    cursor.insertText(QStringLiteral("q"));
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(*argc, *argv);
    return 0;
}

/// It holds for whatever any bytes leave in a document, and when somebody has written in that.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QByteArray rtf(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (!looksLikeRtf(rtf))
        rtf.prepend("{\\rtf1");
    QTextDocument document;
    readRtf(rtf, document);
    requireRoundTrip(document, isNearlyFull(document));
    if (changeLetter(document, size))
        requireRoundTrip(document, true);
    return 0;
}
