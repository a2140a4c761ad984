// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/device_bitmap.h"

#include "rtf/pictures/little_endian.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cstring>

namespace orvalis::rtf {

namespace {

constexpr quint32 CoreHeaderSize = 12;
constexpr quint32 InfoHeaderSize = 40;
constexpr qsizetype FileHeaderSize = 14;
constexpr qsizetype ColorCountAt = 32; // in the header
constexpr qint64 LargestSide = 32767;

constexpr quint32 CompressionNone = 0;
constexpr quint32 CompressionRle8 = 1;
constexpr quint32 CompressionRle4 = 2;
constexpr quint32 CompressionBitFields = 3;

struct DibHeader {
    quint32 headerSize = 0;
    qint64 width = 0;
    qint64 height = 0;
    int bits = 0;
    quint32 compression = 0;
    qint64 colors = 0;
    qint64 paletteBytes = 0;
    qint64 pixelOffset() const { return qint64(headerSize) + paletteBytes; }
};

bool readHeader(QByteArrayView dib, DibHeader& header) {
    header.headerSize = readU32(dib, 0);
    const bool core = header.headerSize == CoreHeaderSize;
    if (!core && (header.headerSize < InfoHeaderSize || header.headerSize > 256))
        return false;
    if (dib.size() < qsizetype(header.headerSize))
        return false;
    header.width = core ? readU16(dib, 4) : qint32(readU32(dib, 4));
    header.height = core ? readU16(dib, 6) : qAbs(qint64(qint32(readU32(dib, 8))));
    header.bits = readU16(dib, core ? 10 : 14);
    header.compression = core ? CompressionNone : readU32(dib, 16);
    if (header.width <= 0 || header.height <= 0 || header.width > LargestSide ||
        header.height > LargestSide)
        return false;
    switch (header.bits) {
    case 1:
    case 4:
    case 8:
    case 16:
    case 24:
    case 32:
        break;
    default:
        return false;
    }
    qint64 colors = core ? 0 : readU32(dib, ColorCountAt);
    if (header.bits <= 8 && (colors == 0 || colors > (1 << header.bits)))
        colors = 1 << header.bits;
    if (colors > 256)
        return false;
    header.colors = colors;
    header.paletteBytes = colors * (core ? 3 : 4);
    if (header.compression == CompressionBitFields && header.headerSize == InfoHeaderSize)
        header.paletteBytes += 12;
    return true;
}

/// Whether there may be as many pixels as the header claims.
/// \param available bytes, with the header.
/// \param cutShort how many times as many bytes plain rows may want.
bool isPlausible(const DibHeader& header, qint64 available, int cutShort) {
    available -= header.pixelOffset();
    switch (header.compression) {
    case CompressionNone:
    case CompressionBitFields:
        return (header.width * header.bits + 31) / 32 * 4 * header.height <= available * cutShort;
    case CompressionRle8:
    case CompressionRle4:
        // Each pair of bytes draws 255 pixels at most.
        return header.width * header.height <= available * 256;
    default:
        return false;
    }
}

} // namespace

QImage imageOfDib(QByteArrayView dib) {
    DibHeader header;
    if (!readHeader(dib, header) || !isPlausible(header, dib.size(), 1))
        return {};
    QByteArray file;
    file.reserve(dib.size() + FileHeaderSize);
    file.append("BM", 2);
    appendU32(file, quint32(dib.size() + FileHeaderSize));
    appendU32(file, 0);
    appendU32(file, quint32(header.pixelOffset() + FileHeaderSize));
    file.append(dib);
    // A table of more colours than its pixels can name would be looked for in the rows.
    if (header.headerSize >= InfoHeaderSize && header.bits <= 8)
        qToLittleEndian(quint32(header.colors), file.data() + FileHeaderSize + ColorCountAt);
    return imageOfBitmapFile(file);
}

QImage imageOfBitmapFile(const QByteArray& file) {
    constexpr int MostCutShort = 16; // times what is left of it
    const QByteArrayView dib = QByteArrayView(file).sliced(std::min(file.size(), FileHeaderSize));
    DibHeader header;
    if (!readHeader(dib, header) || !isPlausible(header, dib.size(), MostCutShort))
        return {};
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "BMP");
    // The decoder leaves the pixels that the file does not tell as it finds them.
    QImage image(int(header.width), int(header.height), reader.imageFormat());
    image.fill(0);
    return reader.read(&image) ? image : QImage();
}

QImage imageOfRows(QByteArrayView rows, QSize size, const DeviceBitmap& bitmap) {
    const qint64 width = size.width();
    const qint64 height = size.height();
    if (width <= 0 || height <= 0 || width > LargestSide || height > LargestSide ||
        bitmap.planes != 1)
        return {};
    QImage::Format format = QImage::Format_Invalid;
    switch (bitmap.bitsPerPixel) {
    case 1:
        format = QImage::Format_Mono;
        break;
    case 24:
        format = QImage::Format_BGR888;
        break;
    case 32:
        format = QImage::Format_RGB32;
        break;
    default:
        return {};
    }
    const qint64 needed = (width * bitmap.bitsPerPixel + 7) / 8;
    const qint64 rowBytes = bitmap.bytesPerRow > 0 ? bitmap.bytesPerRow : (needed + 1) / 2 * 2;
    if (rowBytes < needed || rowBytes * (height - 1) + needed > rows.size())
        return {};
    QImage image(size, format);
    if (image.isNull())
        return {};
    if (format == QImage::Format_Mono)
        image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(image.scanLine(y), rows.data() + y * rowBytes, size_t(needed));
    return image;
}

QByteArray dibOfImage(const QImage& image) {
    QImage opaque(image.size(), QImage::Format_RGB888);
    opaque.fill(Qt::white);
    {
        QPainter painter(&opaque);
        painter.drawImage(0, 0, image);
    }
    const int rowBytes = (opaque.width() * 3 + 3) / 4 * 4;
    QByteArray dib;
    dib.reserve(InfoHeaderSize + qsizetype(rowBytes) * opaque.height());
    appendU32(dib, InfoHeaderSize);
    appendU32(dib, quint32(opaque.width()));
    appendU32(dib, quint32(opaque.height()));
    appendU16(dib, 1);
    appendU16(dib, 24);
    appendU32(dib, CompressionNone);
    appendU32(dib, quint32(rowBytes * opaque.height()));
    for (int unset = 0; unset < 4; ++unset)
        appendU32(dib, 0);
    for (int y = opaque.height() - 1; y >= 0; --y) {
        const uchar* pixel = opaque.constScanLine(y);
        for (int x = 0; x < opaque.width(); ++x, pixel += 3) {
            const char blueFirst[] = {char(pixel[2]), char(pixel[1]), char(pixel[0])};
            dib.append(blueFirst, 3);
        }
        dib.append(rowBytes - opaque.width() * 3, '\0');
    }
    return dib;
}

} // namespace orvalis::rtf
