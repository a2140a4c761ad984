// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/picture_writer.h"

#include "rtf/device_bitmap.h"
#include "rtf/picture_image.h"

namespace orvalis::rtf {

namespace {

constexpr qsizetype bytesPerLine = 39;
// A metafile of 24-bit pixels in hexadecimal takes six bytes a pixel; larger pictures would swell
// the file for the sake of readers that are hardly in use any more.
constexpr qint64 mostTwinPixels = 65536;

void appendHex(QByteArray& out, QByteArrayView bytes) {
    static constexpr char digits[] = "0123456789abcdef";
    const qsizetype lines = (bytes.size() + bytesPerLine - 1) / bytesPerLine;
    const qsizetype start = out.size();
    out.resize(start + bytes.size() * 2 + lines * 2);
    char* at = out.data() + start;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (i % bytesPerLine == 0) {
            *at++ = '\r';
            *at++ = '\n';
        }
        const uchar byte = uchar(bytes[i]);
        *at++ = digits[byte >> 4];
        *at++ = digits[byte & 15];
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

// The unit of a metafile's size is a hundredth of a millimetre.
QSize metafileSize(const Picture& picture) {
    return {picture.goalWidth * 254 / 144, picture.goalHeight * 254 / 144};
}

} // namespace

QByteArray pictureGroups(const Picture& picture) {
    QByteArray rtf;
    if (picture.kind == PictureKind::Wmf || picture.kind == PictureKind::Emf) {
        const QByteArray kind = picture.kind == PictureKind::Emf
                                    ? QByteArray("\\emfblip")
                                    : "\\wmetafile" + QByteArray::number(picture.mapMode);
        appendGroup(rtf, kind, metafileSize(picture), picture, picture.bytes);
        return rtf;
    }
    const QSize size = pixelSize(picture);
    const bool twin = !size.isEmpty() && qint64(size.width()) * size.height() <= mostTwinPixels;
    const QImage image = twin ? imageOfPicture(picture, mostTwinPixels, nullptr) : QImage();
    rtf.append("{\\*\\shppict");
    appendGroup(rtf, picture.kind == PictureKind::Jpeg ? "\\jpegblip" : "\\pngblip", size, picture,
                picture.bytes);
    rtf.append('}');
    if (image.isNull())
        return rtf;
    rtf.append("{\\nonshppict");
    appendGroup(rtf, "\\wmetafile8", metafileSize(picture), picture,
                metafileOfDib(dibOfImage(image), image.size()));
    rtf.append('}');
    return rtf;
}

} // namespace orvalis::rtf
