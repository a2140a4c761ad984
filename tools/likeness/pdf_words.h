// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointF>
#include <QString>

namespace orvalis::likeness {

/// A word of a page as it was set.
struct Word {
    QString text;
    int page = 0;
    QPointF corner;      ///< upper left, in points
    bool isRare = false; ///< has characters for which few machines have a font
};

/// How a character was set.
struct Look {
    QString font; ///< without weight and style
    int size = 0; ///< as the page tells it, whole units
    bool bold = false;
    QString color;

    bool operator==(const Look&) const = default;
};

struct LookedWord {
    QString text;
    Look look; ///< of its first character
};

struct PdfText {
    int pages = 0;
    QList<Word> words;
    QList<LookedWord> looks;
};

/// The family that most of the first page of a PDF stands in, as this machine names it.
QString mainFamily(const QString& path);

/// What poppler's tools read in a PDF; no page where it cannot be read.
PdfText readPdf(const QString& path);

} // namespace orvalis::likeness
