// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/picture_format.h"

#include "rtf/formats/format_properties.h"
#include "rtf/formats/formats.h"
#include "rtf/pictures/picture_box.h"
#include "rtf/pictures/picture_image.h"
#include "rtf/room/intake.h"

#include <QCryptographicHash>
#include <QImage>
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

constexpr int BytesOfPixel = 4; // of the rasters that are bounded
constexpr qint64 MostPixelsOfOne = qint64(1) << 23;

QVariantList sourceSize(const Picture& picture) {
    return {picture.width,         picture.height,
            picture.mapMode,       picture.bitmap.bitsPerPixel,
            picture.bitmap.planes, picture.bitmap.bytesPerRow};
}

// What is written: what the first bytes say, unless they are a file that RTF has no word for.
PictureKind keptKind(const Picture& picture) {
    const PictureKind found = kindOfBytes(picture.bytes);
    return found == PictureKind::Unknown || found == PictureKind::Other ? picture.kind : found;
}

// The name follows from the content, so that a document never holds the same picture twice and
// a copy into another document finds its own.
QString contentKey(const Picture& picture) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(picture.bytes);
    hash.addData(QByteArray::number(int(keptKind(picture))) + ',');
    for (const QVariant& number : sourceSize(picture))
        hash.addData(QByteArray::number(number.toInt()) + ',');
    return QString::fromLatin1(hash.result().toHex());
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
    return shown > 0 ? std::max(1, int(std::lround(shown * TwipsPerPixel)))
                     : int(std::lround(own * TwipsPerPixel));
}

QImage drawn(const Picture& picture, MetafileConverter* converter, PictureBounds& bounds) {
    const QSize claimed = pixelSize(picture);
    bounds.claimedLeft -= qint64(claimed.width()) * claimed.height();
    return bounds.claimedLeft < 0 ? QImage()
                                  : imageOfPicture(picture, bounds.mostPixels(), converter);
}

/// What the document shows for a picture.
struct Shown {
    QString name;
    QImage image;
    bool isBox = false;
};

Shown shownAs(QTextDocument& document, const Picture& picture, MetafileConverter* converter,
              PictureBounds& bounds) {
    const QString key = contentKey(picture);
    // That a picture cannot be drawn is remembered too: finding it out may take a converter's run.
    for (const bool box : {false, true}) {
        const QString name = (box ? "box:"_L1 : "picture:"_L1) + key;
        QImage known = imageOfResource(document.resource(QTextDocument::ImageResource, QUrl(name)));
        if (!known.isNull())
            return {name, known, box};
    }
    Shown made{"picture:"_L1 + key, drawn(picture, converter, bounds)};
    if (made.image.isNull())
        made = {"box:"_L1 + key, emptyBox(boxTwips(picture) / TwipsPerPixel, bounds.mostPixels()),
                true};
    bounds.pixelsLeft -= made.image.sizeInBytes() / BytesOfPixel;
    document.addResource(QTextDocument::ImageResource, QUrl(made.name), made.image);
    return made;
}

bool isWritable(PictureKind kind) {
    return isMetafile(kind) || kind == PictureKind::Png || kind == PictureKind::Jpeg;
}

// The picture as the format keeps it, without the size at which it shows.
Picture sourceOf(const QTextImageFormat& format) {
    Picture picture;
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
    picture.fallback = format.property(PictureFallback).toByteArray();
    picture.hidden = format.hasProperty(HiddenPictureSize);
    picture.words = format.stringProperty(PictureWords);
    picture.frame = format.stringProperty(PictureFrame);
    return picture;
}

QSizeF shownSize(const QTextImageFormat& format) {
    return format.hasProperty(HiddenPictureSize) ? format.property(HiddenPictureSize).toSizeF()
                                                 : QSizeF(format.width(), format.height());
}

// Whether a box has the size that it has where nobody names one.
bool isDefaultSize(const QTextImageFormat& format, const Picture& picture) {
    return shownSize(format) == boxTwips(picture) / TwipsPerPixel;
}

} // namespace

qint64 PictureBounds::mostPixels() const {
    return std::clamp<qint64>(pixelsLeft, 0, MostPixelsOfOne);
}

QTextImageFormat pictureFormat(QTextDocument& document, const Picture& picture,
                               MetafileConverter* converter, PictureBounds& bounds) {
    if (picture.bytes.isEmpty())
        return {};
    const Shown shown = shownAs(document, picture, converter, bounds);
    QSizeF size = (shown.isBox ? boxTwips(picture) : shownTwips(picture)) / TwipsPerPixel;
    if (size.isEmpty())
        size = shown.image.size();
    QTextImageFormat format;
    format.setName(shown.name);
    format.setWidth(size.width());
    format.setHeight(size.height());
    format.setProperty(PictureSource, picture.bytes);
    format.setProperty(PictureSourceKind, int(keptKind(picture)));
    format.setProperty(PictureSourceSize, sourceSize(picture));
    if (shown.isBox)
        format.setProperty(PictureIsBox, true);
    if (!picture.words.isEmpty())
        format.setProperty(PictureWords, picture.words);
    if (!picture.frame.isEmpty())
        format.setProperty(PictureFrame, picture.frame);
    return format;
}

void showFallback(QTextDocument& document, const Picture& fallback, MetafileConverter* converter,
                  PictureBounds& bounds, QTextImageFormat& box) {
    if (kindOfBytes(fallback.bytes) != PictureKind::Wmf)
        return;
    box.setProperty(PictureFallback, fallback.bytes);
    Picture metafile = fallback; // as which it is written, whatever its words say
    metafile.kind = PictureKind::Wmf;
    metafile.mapMode = Picture().mapMode;
    const QTextImageFormat drawn = pictureFormat(document, metafile, converter, bounds);
    if (drawn.boolProperty(PictureIsBox))
        return;
    const Picture own = sourceOf(box);
    if (wantedTwips(own).isEmpty() && isDefaultSize(box, own)) {
        box.setWidth(drawn.width());
        box.setHeight(drawn.height());
    }
    box.setName(drawn.name());
    box.clearProperty(PictureIsBox);
}

QTextImageFormat hiddenPicture(QTextImageFormat format) {
    format.setProperty(HiddenPictureSize, QSizeF(format.width(), format.height()));
    format.setWidth(0);
    format.setHeight(0);
    return format;
}

Picture pictureOfFormat(const QTextDocument& document, const QTextImageFormat& format) {
    const QVariant resource = document.resource(QTextDocument::ImageResource, QUrl(format.name()));
    Picture picture = sourceOf(format);
    if (picture.bytes.isEmpty() && resource.typeId() == QMetaType::QByteArray) {
        picture.bytes = resource.toByteArray();
        picture.kind = kindOfBytes(picture.bytes);
    }
    QImage image = imageOfResource(resource);
    const bool isBox = format.boolProperty(PictureIsBox) && !picture.bytes.isEmpty();
    if (!isBox && picture.fallback.isEmpty() &&
        (!isWritable(picture.kind) || picture.bytes.isEmpty())) {
        if (image.isNull() && !picture.bytes.isEmpty())
            image = imageOfPicture(picture, MostPixelsOfOne, nullptr);
        if (!image.isNull()) {
            picture.bytes = pngOf(image);
            picture.kind = PictureKind::Png;
            picture.width = image.width();
            picture.height = image.height();
        }
    }
    const bool unnamed = !isMetafile(picture.kind) && wantedTwips(picture).isEmpty();
    if (isBox && unnamed && isDefaultSize(format, picture))
        return picture;
    const QSizeF shown = shownSize(format);
    const QSize own = picture.bytes.isEmpty() ? QSize() : pixelSize(picture);
    picture.goalWidth = goalTwips(shown.width(), own.width());
    picture.goalHeight = goalTwips(shown.height(), own.height());
    return picture;
}

bool insertPicture(QTextCursor& cursor, const QByteArray& bytes, MetafileConverter* converter,
                   PictureBounds& bounds) {
    Picture picture;
    picture.kind = kindOfBytes(bytes);
    picture.bytes = bytes;
    const QSize size = pixelSize(picture);
    picture.width = size.width();
    picture.height = size.height();
    if (shownTwips(picture).isEmpty())
        return false;
    const QTextImageFormat image = pictureFormat(*cursor.document(), picture, converter, bounds);
    QTextCharFormat merged = cursor.charFormat();
    const LetterHeight letters = letterHeight(merged, cursor.document()->defaultFont());
    if (!Intake(cursor).takesPicture(image.height(), letters, paragraphShape(cursor.blockFormat())))
        return false;
    merged.merge(image);
    cursor.insertImage(merged.toImageFormat());
    return true;
}

} // namespace orvalis::rtf
