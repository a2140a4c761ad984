// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writing/picture_writer.h"

#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/picture_image.h"

namespace orvalis::rtf {

namespace {

constexpr qsizetype BytesPerLine = 39;
// A metafile of 24-bit pixels in hexadecimal takes six bytes a pixel; larger pictures would swell
// the file for the sake of readers that are hardly in use any more.
constexpr qint64 MostTwinPixels = 65536;

void appendHex(QByteArray& out, QByteArrayView bytes) {
    static constexpr char Digits[] = "0123456789abcdef";
    const qsizetype lines = (bytes.size() + BytesPerLine - 1) / BytesPerLine;
    const qsizetype start = out.size();
    out.resize(start + bytes.size() * 2 + lines * 2);
    char* at = out.data() + start;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (i % BytesPerLine == 0) {
            *at++ = '\r';
            *at++ = '\n';
        }
        const uchar byte = uchar(bytes[i]);
        *at++ = Digits[byte >> 4];
        *at++ = Digits[byte & 15];
    }
}

void appendSize(QByteArray& out, const char* name, int number) {
    if (number > 0)
        out.append(name).append(QByteArray::number(number));
}

void appendGroup(QByteArray& out, const QByteArray& kind, QSize size, const Picture& picture,
                 QByteArrayView bytes) {
    out.append("{\\pict").append(kind);
    appendSize(out, "\\picw", size.width());
    appendSize(out, "\\pich", size.height());
    appendSize(out, "\\picwgoal", picture.goalWidth);
    appendSize(out, "\\pichgoal", picture.goalHeight);
    appendHex(out, bytes);
    out.append("\r\n}");
}

QByteArray kindWords(const Picture& picture) {
    switch (picture.kind) {
    case PictureKind::Png:
        return "\\pngblip";
    case PictureKind::Jpeg:
        return "\\jpegblip";
    case PictureKind::Emf:
        return "\\emfblip";
    case PictureKind::Wmf:
        return "\\wmetafile" + QByteArray::number(picture.mapMode);
    case PictureKind::DeviceIndependent:
        return "\\dibitmap0";
    case PictureKind::DeviceDependent:
        return "\\wbitmap0\\wbmbitspixel" + QByteArray::number(picture.bitmap.bitsPerPixel) +
               "\\wbmplanes" + QByteArray::number(picture.bitmap.planes) + "\\wbmwidthbytes" +
               QByteArray::number(picture.bitmap.bytesPerRow);
    case PictureKind::MacPict:
        return "\\macpict";
    case PictureKind::Os2Metafile:
        return "\\pmmetafile" + QByteArray::number(picture.mapMode);
    case PictureKind::Unknown:
    case PictureKind::Other:
        break;
    }
    return {};
}

// The unit of a metafile's size is a hundredth of a millimetre.
QSize metafileSize(const Picture& picture) {
    return {picture.goalWidth * 254 / 144, picture.goalHeight * 254 / 144};
}

// Some programs refuse a whole file for one picture whose bytes they know nothing of.
bool isStrange(const Picture& picture) {
    const PictureKind found = kindOfBytes(picture.bytes);
    return (found == PictureKind::Unknown || found == PictureKind::Other) &&
           picture.kind != PictureKind::DeviceIndependent;
}

// A form of today or, for what is strange, a form that only this program looks into.
QByteArray firstForm(const Picture& picture, const QByteArray& group) {
    return (isStrange(picture) ? "{\\*\\orvpict" : "{\\*\\shppict") + group + '}';
}

// The second form is one that every reader knows.
QByteArray withFallback(const QByteArray& first, const QByteArray& fallback) {
    return first + "{\\nonshppict" + fallback + '}';
}

// In pixels, or in the unit of a metafile.
QSize writtenSize(const Picture& picture) {
    if (isMetafile(picture.kind))
        return metafileSize(picture);
    const bool encoded = picture.kind == PictureKind::Png || picture.kind == PictureKind::Jpeg;
    // What names no size must not get one by its pixels, which may be nothing but a claim.
    const QSize pixels = encoded && picture.goalWidth > 0 ? pixelSize(picture) : QSize();
    return pixels.isEmpty() ? QSize(picture.width, picture.height) : pixels;
}

QByteArray ownGroup(const Picture& picture) {
    QByteArray rtf;
    appendGroup(rtf, picture.words.toLatin1() + kindWords(picture), writtenSize(picture), picture,
                picture.bytes);
    return rtf;
}

QByteArray metafileGroup(const Picture& picture, const QByteArray& metafile) {
    QByteArray rtf;
    appendGroup(rtf, "\\wmetafile8", metafileSize(picture), picture, metafile);
    return rtf;
}

} // namespace

QByteArray pictureOfShape(const Picture& picture) {
    return isStrange(picture) ? firstForm(picture, ownGroup(picture)) : ownGroup(picture);
}

QByteArray pictureGroups(const Picture& picture) {
    const QByteArray own = ownGroup(picture);
    const QByteArray first = firstForm(picture, own);
    if (!picture.fallback.isEmpty())
        return withFallback(first, metafileGroup(picture, picture.fallback));
    if (isStrange(picture))
        return first;
    if (picture.kind != PictureKind::Png && picture.kind != PictureKind::Jpeg)
        return own;
    const QSize size = pixelSize(picture);
    const bool twin = !size.isEmpty() && qint64(size.width()) * size.height() <= MostTwinPixels;
    const QImage image = twin ? imageOfPicture(picture, MostTwinPixels, nullptr) : QImage();
    if (image.isNull())
        return first;
    return withFallback(first,
                        metafileGroup(picture, metafileOfDib(dibOfImage(image), image.size())));
}

} // namespace orvalis::rtf
