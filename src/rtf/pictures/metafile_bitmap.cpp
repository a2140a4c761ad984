// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/device_bitmap.h"

#include "rtf/pictures/little_endian.h"
#include "rtf/pictures/metafile_records.h"

namespace orvalis::rtf {

namespace {

// Where the DIB stands in a record that carries one, in bytes behind the record's header.
qsizetype dibOffset(MetafileFunction function) {
    switch (function) {
    case MetafileFunction::DibBitBlt:
        return 16;
    case MetafileFunction::DibStretchBlt:
        return 20;
    case MetafileFunction::StretchDiBits:
        return 22;
    case MetafileFunction::SetDiBitsToDevice:
        return 18;
    default:
        return -1;
    }
}

constexpr quint32 EnhancedEndOfFile = 14;
constexpr quint32 EnhancedBitBlt = 76;
constexpr quint32 EnhancedStretchBlt = 77;
constexpr quint32 EnhancedSetDiBitsToDevice = 80;
constexpr quint32 EnhancedStretchDiBits = 81;

// Where a record of an enhanced metafile tells the place of its DIB's header.
qsizetype enhancedDibField(quint32 type) {
    switch (type) {
    case EnhancedBitBlt:
    case EnhancedStretchBlt:
        return 84;
    case EnhancedSetDiBitsToDevice:
    case EnhancedStretchDiBits:
        return 48;
    default:
        return -1;
    }
}

} // namespace

QByteArrayView dibOfMetafile(QByteArrayView metafile) {
    MetafileRecords records(metafile);
    while (records.next()) {
        const qsizetype offset = dibOffset(records.function());
        if (offset >= 0 && offset < records.parameters().size())
            return records.parameters().sliced(offset);
    }
    return {};
}

QByteArrayView dibOfEnhancedMetafile(QByteArrayView metafile) {
    qsizetype at = 0;
    while (at + 8 <= metafile.size()) {
        const quint32 type = readU32(metafile, at);
        const qint64 size = readU32(metafile, at + 4);
        if (size < 8 || type == EnhancedEndOfFile)
            break;
        const qsizetype end = qsizetype(std::min<qint64>(at + size, metafile.size()));
        const qsizetype field = enhancedDibField(type);
        if (field >= 0) {
            const qint64 header = readU32(metafile, at + field);
            const qint64 headerSize = readU32(metafile, at + field + 4);
            const qint64 bits = readU32(metafile, at + field + 8);
            // Header and pixels nearly always follow each other, as a packed DIB has them.
            if (header > 0 && header + headerSize == bits && at + header < end)
                return metafile.sliced(qsizetype(at + header), qsizetype(end - at - header));
        }
        at = end;
    }
    return {};
}

QByteArray metafileOfDib(QByteArrayView dib, QSize size) {
    const qsizetype drawWords = 3 + 10 + (dib.size() + 1) / 2;
    const qsizetype totalWords = MetafileHeaderWords + 4 + 5 + 5 + 4 + drawWords + 3;
    const auto width = quint16(size.width());
    const auto height = quint16(size.height());
    QByteArray file;
    file.reserve(totalWords * 2);
    const auto record = [&file](qsizetype words, MetafileFunction function) {
        appendU32(file, quint32(words));
        appendU16(file, quint16(function));
    };
    appendU16(file, 1);
    appendU16(file, MetafileHeaderWords);
    appendU16(file, 0x0300);
    appendU32(file, quint32(totalWords));
    appendU16(file, 0);
    appendU32(file, quint32(drawWords));
    appendU16(file, 0);
    record(4, MetafileFunction::SetMapMode);
    appendU16(file, 8);
    record(5, MetafileFunction::SetWindowExtent);
    appendU16(file, height);
    appendU16(file, width);
    record(5, MetafileFunction::SetWindowOrigin);
    appendU32(file, 0);
    record(4, MetafileFunction::SetStretchBltMode);
    appendU16(file, 3);
    record(drawWords, MetafileFunction::DibStretchBlt);
    appendU32(file, 0x00cc0020);
    appendU16(file, height);
    appendU16(file, width);
    appendU32(file, 0);
    appendU16(file, height);
    appendU16(file, width);
    appendU32(file, 0);
    file.append(dib);
    if (dib.size() % 2 != 0)
        file.append('\0');
    record(3, MetafileFunction::EndOfFile);
    return file;
}

} // namespace orvalis::rtf
