// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/reader.h"

#include <QAbstractTextDocumentLayout>
#include <QByteArray>
#include <QTest>
#include <QTextDocument>

namespace orvalis::test {

/// Lays out all of a document, as a narrow window would. \returns how high it is, in pixels.
inline double laidOutHeight(QTextDocument& document) {
    constexpr int NarrowBox = 150; // pixels
    document.setDocumentMargin(0);
    document.setTextWidth(NarrowBox);
    return document.documentLayout()->documentSize().height();
}

inline QByteArray repeated(const QByteArray& piece, int times) {
    return "{\\rtf1 " + piece.repeated(times) + "}";
}

/// As much ordinary text as a document can hold, in lines that are far apart.
inline void fillDocument(QTextDocument& document) {
    const QByteArray words = "Some words of a letter, as people write them to each other. ";
    const rtf::ReadResult result =
        rtf::readRtf("{\\rtf1{\\fonttbl{\\f0 Liberation Sans;}}\\f0\\fs24\\sl-3600 " +
                         words.repeated(15'000) + "}",
                     document);
    QCOMPARE(result.fault, rtf::Fault::TooLarge);
}

} // namespace orvalis::test
