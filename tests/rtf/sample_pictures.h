// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

namespace orvalis::test {

/// A file with a picture between two letters.
/// \param words that tell the picture's kind and size.
inline QByteArray rtfOf(const QByteArray& words, const QByteArray& bytes) {
    return "{\\rtf1 a{\\pict" + words + "\r\n" + bytes.toHex() + "}b\\par}";
}

/// The first picture of the first paragraph; not valid where there is none.
inline QTextImageFormat pictureOf(const QTextDocument& document) {
    for (auto run = document.firstBlock().begin(); !run.atEnd(); ++run)
        if (run.fragment().charFormat().isImageFormat())
            return run.fragment().charFormat().toImageFormat();
    return {};
}

/// What the document draws for it.
inline QImage shown(const QTextDocument& document) {
    return document.resource(QTextDocument::ImageResource, QUrl(pictureOf(document).name()))
        .value<QImage>();
}

inline QByteArray withoutLineEnds(QByteArray bytes) {
    return bytes.replace("\r\n", "");
}

} // namespace orvalis::test
