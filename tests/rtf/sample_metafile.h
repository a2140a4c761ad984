// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/little_endian.h"

#include <QByteArray>
#include <QList>
#include <QRect>

namespace orvalis::test {

/// A record of a metafile: its function, and its parameters in words of two bytes.
inline QByteArray metafileRecord(int function, const QList<int>& words,
                                 const QByteArray& behind = {}) {
    QByteArray record;
    rtf::appendU32(record, quint32(3 + words.size() + behind.size() / 2));
    rtf::appendU16(record, quint16(function));
    for (const int word : words)
        rtf::appendU16(record, quint16(word));
    return record + behind;
}

/// A metafile of these records, with its head and its end.
inline QByteArray metafile(const QByteArray& records) {
    const QByteArray end = metafileRecord(0, {});
    QByteArray file;
    rtf::appendU16(file, 1);
    rtf::appendU16(file, 9);
    rtf::appendU16(file, 0x0300);
    rtf::appendU32(file, quint32(9 + (records.size() + end.size()) / 2));
    rtf::appendU16(file, 0);
    rtf::appendU32(file, quint32(records.size() / 2));
    rtf::appendU16(file, 0);
    return file + records + end;
}

/// A metafile of one rectangle: nothing but vectors in it.
inline QByteArray vectorMetafile() {
    return metafile(metafileRecord(0x041b, {90, 90, 10, 10}));
}

/// The header that tells the box of a metafile, and how many of its units make an inch.
inline QByteArray placeable(const QRect& box, int unitsPerInch, const QByteArray& metafile) {
    QByteArray header;
    rtf::appendU32(header, 0x9ac6cdd7);
    rtf::appendU16(header, 0);
    for (const int edge : {box.x(), box.y(), box.x() + box.width(), box.y() + box.height()})
        rtf::appendU16(header, quint16(edge));
    rtf::appendU16(header, quint16(unitsPerInch));
    rtf::appendU32(header, 0);
    quint16 sum = 0;
    for (qsizetype at = 0; at < header.size(); at += 2)
        sum ^= rtf::readU16(header, at);
    rtf::appendU16(header, sum);
    return header + metafile;
}

/// A record of an enhanced metafile: its type, and its parameters in words of four bytes.
inline QByteArray enhancedRecord(quint32 type, const QList<quint32>& words,
                                 const QByteArray& behind = {}) {
    QByteArray record;
    rtf::appendU32(record, type);
    rtf::appendU32(record, quint32(8 + 4 * words.size() + behind.size()));
    for (const quint32 word : words)
        rtf::appendU32(record, word);
    return record + behind;
}

/// An enhanced metafile of these records.
/// \param frame what it covers, in hundredths of a millimetre.
inline QByteArray enhancedMetafile(const QRect& frame, const QByteArray& records) {
    constexpr quint32 HeaderSize = 88;
    const QByteArray end = enhancedRecord(14, {0, 16, 20});
    const auto size = quint32(HeaderSize + records.size() + end.size());
    const QByteArray header = enhancedRecord(1, {0,
                                                 0,
                                                 99,
                                                 99,
                                                 quint32(frame.x()),
                                                 quint32(frame.y()),
                                                 quint32(frame.x() + frame.width()),
                                                 quint32(frame.y() + frame.height()),
                                                 0x464d4520,
                                                 0x10000,
                                                 size,
                                                 3,
                                                 1,
                                                 0,
                                                 0,
                                                 0,
                                                 1024,
                                                 768,
                                                 320,
                                                 240});
    return header + records + end;
}

/// An enhanced metafile of one rectangle.
inline QByteArray vectorEnhancedMetafile(const QRect& frame) {
    return enhancedMetafile(frame, enhancedRecord(43, {10, 10, 90, 90}));
}

} // namespace orvalis::test
