// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/picture_image.h"

#include "rtf/formats/formats.h"
#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/jpeg_size.h"
#include "rtf/pictures/little_endian.h"
#include "rtf/pictures/metafile_converter.h"
#include "rtf/pictures/metafile_size.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace orvalis::rtf {

namespace {

// No file of this many pixels comes from a camera or a screen; its decoder would be busy with
// nothing but the claim.
constexpr qint64 MostClaimedPixels = qint64(1) << 27;

// An inch either way: enough to be seen, too little to be in the way.
constexpr QSizeF UnnamedTwips(TwipsPerInch, TwipsPerInch);

// Whether Qt may know the kind, or is to be asked whether it does.
bool isEncoded(PictureKind kind) {
    return kind == PictureKind::Png || kind == PictureKind::Jpeg || kind == PictureKind::Other ||
           kind == PictureKind::Unknown;
}

PictureKind trueKind(const Picture& picture) {
    const PictureKind found = kindOfBytes(picture.bytes);
    // Rows of pixels may begin with anything.
    const bool raw = picture.kind == PictureKind::DeviceDependent;
    return found == PictureKind::Unknown || raw ? picture.kind : found;
}

QSize fitted(QSize size, qint64 mostPixels) {
    mostPixels = std::max<qint64>(mostPixels, 1);
    const double pixels = double(size.width()) * size.height();
    if (pixels <= double(mostPixels))
        return size;
    const double factor = std::sqrt(double(mostPixels) / pixels);
    return {std::max(1, int(size.width() * factor)), std::max(1, int(size.height() * factor))};
}

QImage shrunk(const QImage& image, qint64 mostPixels) {
    const QSize wanted = fitted(image.size(), mostPixels);
    return wanted == image.size()
               ? image
               : image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage decoded(const QByteArray& bytes, qint64 mostPixels) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (reader.format() == "bmp")
        return shrunk(imageOfBitmapFile(bytes), mostPixels);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > MostClaimedPixels)
        return {};
    const QSize wanted = fitted(size, mostPixels);
    if (wanted != size)
        reader.setScaledSize(wanted);
    return reader.read();
}

QByteArrayView dibOfPicture(const Picture& picture, PictureKind kind) {
    switch (kind) {
    case PictureKind::Wmf:
        return dibOfMetafile(picture.bytes);
    case PictureKind::Emf:
        return dibOfEnhancedMetafile(picture.bytes);
    default:
        return picture.bytes;
    }
}

} // namespace

QSize pixelSize(const Picture& picture) {
    const PictureKind kind = trueKind(picture);
    if (isEncoded(kind)) {
        QBuffer buffer;
        buffer.setData(picture.bytes);
        buffer.open(QIODevice::ReadOnly);
        const QSize size = QImageReader(&buffer).size();
        // The rows of a bitmap may stand from the top to the bottom, which its height tells by less
        // than nothing.
        const QSize upright(size.width(), qAbs(size.height()));
        return upright.isEmpty() ? jpegSize(picture.bytes) : upright;
    }
    const bool named = kind == PictureKind::DeviceDependent;
    const QByteArrayView dib = dibOfPicture(picture, kind);
    const qint64 width = named ? picture.width : qint32(readU32(dib, 4));
    const qint64 height = named ? picture.height : qAbs(qint64(qint32(readU32(dib, 8))));
    // A bitmap has a bit for each of its pixels at the least: what claims more is none.
    const bool plausible = width > 0 && height > 0 && width <= dib.size() * 8 / height;
    return plausible ? QSize(int(width), int(height)) : QSize();
}

QSizeF shownTwips(const Picture& picture) {
    const QSizeF wanted = wantedTwips(picture);
    if (!wanted.isEmpty())
        return wanted;
    const QSize pixels = pixelSize(picture);
    if (!pixels.isEmpty())
        return boundedTwips(QSizeF(pixels) * TwipsPerPixel);
    if (!isMetafile(kindOfBytes(picture.bytes)))
        return {};
    const QSizeF window = metafileWindowTwips(picture.bytes);
    return window.isEmpty() ? UnnamedTwips : boundedTwips(window);
}

QImage imageOfPicture(const Picture& picture, qint64 mostPixels, MetafileConverter* converter) {
    switch (trueKind(picture)) {
    case PictureKind::DeviceIndependent:
        return shrunk(imageOfDib(picture.bytes), mostPixels);
    case PictureKind::DeviceDependent:
        return shrunk(imageOfRows(picture.bytes, {picture.width, picture.height}, picture.bitmap),
                      mostPixels);
    case PictureKind::Wmf:
    case PictureKind::Emf: {
        const QByteArrayView dib = dibOfPicture(picture, trueKind(picture));
        const QImage image = dib.isEmpty() ? QImage() : imageOfDib(dib);
        if (!image.isNull())
            return shrunk(image, mostPixels);
        if (!converter || trueKind(picture) == PictureKind::Emf)
            return {};
        const QSizeF twips = shownTwips(picture);
        const QSize pixels = fitted((twips / TwipsPerPixel).toSize(), mostPixels);
        return pixels.isEmpty() ? QImage() : converter->convert(picture.bytes, pixels);
    }
    default:
        return decoded(picture.bytes, mostPixels);
    }
}

QByteArray pngOf(QImage image) {
    // Bitmaps may tell more colours than their pixels can name, which no PNG can.
    if (image.depth() <= 8 && image.colorCount() > 1 << image.depth())
        image.setColorCount(1 << image.depth());
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

} // namespace orvalis::rtf
