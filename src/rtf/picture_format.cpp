// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/picture_format.h"

#include "rtf/format_properties.h"
#include "rtf/formats.h"
#include "rtf/picture_image.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

enum SourceSize { Width, Height, MapMode, BitsPerPixel, Planes, BytesPerRow, SourceSizeCount };

constexpr int largestBox = 256; // pixels

QVariantList sourceSize(const Picture& picture) {
    return {picture.width,         picture.height,
            picture.mapMode,       picture.bitmap.bitsPerPixel,
            picture.bitmap.planes, picture.bitmap.bytesPerRow};
}

// The name follows from the content, so that a document never holds the same picture twice and
// a copy into another document finds its own.
QString nameOf(const Picture& picture) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(picture.bytes);
    for (const QVariant& number : sourceSize(picture))
        hash.addData(QByteArray::number(number.toInt()) + ',');
    return "picture:"_L1 + QLatin1StringView(hash.result().toHex());
}

// What cannot be drawn keeps its place where its bytes are something and its size is named: by
// words around it or, as every metafile has one, by itself.
bool canBeBox(const Picture& picture) {
    switch (kindOfBytes(picture.bytes)) {
    case PictureKind::Wmf:
    case PictureKind::Emf:
        return true;
    case PictureKind::Unknown:
        if (picture.kind != PictureKind::DeviceIndependent &&
            picture.kind != PictureKind::DeviceDependent)
            return false;
        break;
    default:
        break;
    }
    return !wantedTwips(picture).isEmpty();
}

QImage emptyBox(QSize size) {
    QImage box(size.boundedTo({largestBox, largestBox}).expandedTo({1, 1}), QImage::Format_RGB32);
    box.fill(Qt::white);
    QPainter painter(&box);
    painter.setPen(Qt::lightGray);
    painter.drawRect(box.rect().adjusted(0, 0, -1, -1));
    return box;
}

QImage imageOfResource(const QVariant& resource) {
    switch (resource.typeId()) {
    case QMetaType::QImage:
        return resource.value<QImage>();
    case QMetaType::QPixmap:
        return resource.value<QPixmap>().toImage();
    default:
        return {};
    }
}

// What shows at all is at least a twip long: none would mean the picture's own length.
int goalTwips(double shown, int own) {
    return shown > 0 ? std::max(1, int(std::lround(shown * twipsPerPixel)))
                     : int(std::lround(own * twipsPerPixel));
}

} // namespace

QTextImageFormat pictureFormat(QTextDocument& document, const Picture& picture,
                               MetafileConverter* converter, PictureBounds& bounds) {
    QTextImageFormat format;
    const QString name = nameOf(picture);
    const QUrl url(name);
    QVariant resource = document.resource(QTextDocument::ImageResource, url);
    QImage image = imageOfResource(resource);
    QSizeF shown = shownTwips(picture) / twipsPerPixel;
    if (image.isNull()) {
        image = imageOfPicture(picture, bounds.mostPixels, converter);
        bounds.spentPixels = qint64(image.width()) * image.height();
        if (image.isNull() && !canBeBox(picture))
            return {};
        if (image.isNull())
            image = emptyBox(shown.toSize());
        document.addResource(QTextDocument::ImageResource, url, image);
    }
    if (shown.isEmpty())
        shown = image.size();
    format.setName(name);
    format.setWidth(shown.width());
    format.setHeight(shown.height());
    format.setProperty(PictureSource, picture.bytes);
    const PictureKind found = kindOfBytes(picture.bytes);
    format.setProperty(PictureSourceKind,
                       int(found == PictureKind::Unknown ? picture.kind : found));
    format.setProperty(PictureSourceSize, sourceSize(picture));
    return format;
}

Picture pictureOfFormat(const QTextDocument& document, const QTextImageFormat& format) {
    Picture picture;
    const QVariant resource = document.resource(QTextDocument::ImageResource, QUrl(format.name()));
    picture.bytes = format.property(PictureSource).toByteArray();
    picture.kind = static_cast<PictureKind>(format.intProperty(PictureSourceKind));
    const QVariantList size = format.property(PictureSourceSize).toList();
    if (size.size() == SourceSizeCount) {
        picture.width = size[Width].toInt();
        picture.height = size[Height].toInt();
        picture.mapMode = size[MapMode].toInt();
        picture.bitmap = {size[BitsPerPixel].toInt(), size[Planes].toInt(),
                          size[BytesPerRow].toInt()};
    }
    if (picture.bytes.isEmpty() && resource.typeId() == QMetaType::QByteArray) {
        picture.bytes = resource.toByteArray();
        picture.kind = kindOfBytes(picture.bytes);
    }
    QImage image = imageOfResource(resource);
    const bool writable = picture.kind == PictureKind::Png || picture.kind == PictureKind::Jpeg ||
                          picture.kind == PictureKind::Wmf || picture.kind == PictureKind::Emf;
    if (!writable || picture.bytes.isEmpty()) {
        if (image.isNull() && !picture.bytes.isEmpty())
            image = imageOfPicture(picture, PictureBounds().mostPixels, nullptr);
        if (!image.isNull()) {
            QByteArray png;
            QBuffer buffer(&png);
            buffer.open(QIODevice::WriteOnly);
            image.save(&buffer, "PNG");
            picture.bytes = png;
            picture.kind = PictureKind::Png;
            picture.width = image.width();
            picture.height = image.height();
        }
    }
    const QSize own = picture.bytes.isEmpty() ? QSize() : pixelSize(picture);
    picture.goalWidth = goalTwips(format.width(), own.width());
    picture.goalHeight = goalTwips(format.height(), own.height());
    return picture;
}

bool insertPicture(QTextCursor& cursor, const QByteArray& bytes) {
    Picture picture;
    picture.kind = kindOfBytes(bytes);
    picture.bytes = bytes;
    const QSize size = pixelSize(picture);
    picture.width = size.width();
    picture.height = size.height();
    PictureBounds bounds;
    const QTextImageFormat image = pictureFormat(*cursor.document(), picture, nullptr, bounds);
    if (image.name().isEmpty())
        return false;
    QTextCharFormat merged = cursor.charFormat();
    merged.merge(image);
    cursor.insertImage(merged.toImageFormat());
    return true;
}

} // namespace orvalis::rtf
