// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "kept_file.h"
#include "rtf/reader.h"
#include "sample_pictures.h"

#include <QBuffer>
#include <QImage>
#include <QTextDocument>

namespace orvalis::test {

/// What a shape begins with, and `}}` ends.
inline const QByteArray Frame =
    "{\\shp{\\*\\shpinst\\shpleft10\\shpright90{\\sp{\\sn shapeType}{\\sv 202}}";

/// A shape with a text.
inline QByteArray box(const QByteArray& text) {
    return Frame + "{\\shptxt" + text + "}}}";
}

inline QByteArray pngBytes() {
    QByteArray png;
    QBuffer buffer(&png);
    QImage(4, 3, QImage::Format_RGB32).save(&buffer, "PNG");
    return png;
}

/// What a file of these parts shows.
inline QString textOf(const QByteArray& body) {
    QTextDocument document;
    return rtf::readRtf(file(body), document).ok() ? document.toPlainText()
                                                   : QStringLiteral("cannot be read");
}

/// The same file, with a word changed.
inline QByteArray saved(const QByteArray& body) {
    return withoutLineEnds(changedAndSaved(file(body)));
}

} // namespace orvalis::test
