// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/reader.h"
#include "rtf/writer.h"

#include <QTextCursor>
#include <QTextDocument>

namespace orvalis::test {

/// A file of these parts: what stands ahead of the tables is the same in all.
inline QByteArray file(const QByteArray& body) {
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}"
           "{\\f1\\froman\\fcharset204 Times New Roman;}{\\f2\\fswiss\\fcharset0 Verdana;}}"
           "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green128\\blue0;\\red0\\green0\\blue255;}" +
           body + "}";
}

/// Opens a file, changes a word and saves. What was saved is read and saved once more: the bytes
/// must stay.
inline QByteArray changedAndSaved(const QByteArray& given) {
    QTextDocument document;
    if (!rtf::readRtf(given, document).ok())
        return "cannot be read";
    QTextCursor word = document.find(QStringLiteral("word"));
    if (word.isNull())
        return "has no word to change";
    word.insertText(QStringLiteral("deed"));
    const QByteArray written = rtf::writeRtf(document);
    QTextDocument again;
    rtf::readRtf(written, again);
    return rtf::writeRtf(again) == written ? written : "is not stable";
}

} // namespace orvalis::test
