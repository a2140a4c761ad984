// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/load_picture.h"

#include "controls/document_reading.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/pictures/picture_image.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include <memory>

namespace orvalis {
namespace {

constexpr qint64 LargestPictureFile = qint64{64} * 1024 * 1024; // bytes

/// The name under which programs exchange the picture as it is; empty for other kinds.
QString exchangeName(const QByteArray& file) {
    switch (rtf::kindOfBytes(file)) {
    case rtf::PictureKind::Png:
        return QStringLiteral("image/png");
    case rtf::PictureKind::Jpeg:
        return QStringLiteral("image/jpeg");
    default:
        return QString();
    }
}

} // namespace

LoadedPicture LoadPicture(const QString& path) {
    return LoadPicture(path, rtf::PictureBounds().mostPixels());
}

LoadedPicture LoadPicture(const QString& path, qint64 mostPixels) {
    rtf::Picture picture;
    picture.bytes = readWhole(path, LargestPictureFile);
    picture.kind = rtf::kindOfBytes(picture.bytes);
    const QSize size = rtf::pixelSize(picture);
    picture.width = size.width();
    picture.height = size.height();
    const QImage image = rtf::imageOfPicture(picture, mostPixels, readOptions().metafiles);
    if (image.isNull())
        throw RuntimeError(ErrorNumber::InvalidPicture);
    return {picture.bytes, PictureSource(QPixmap::fromImage(image))};
}

void setClipboardPicture(const LoadedPicture& picture) {
    auto data = std::make_unique<QMimeData>();
    const QString name = exchangeName(picture.file);
    if (!name.isEmpty())
        data->setData(name, picture.file);
    data->setImageData(picture.picture.pixmap(picture.picture.size(), 1).toImage());
    QApplication::clipboard()->setMimeData(data.release());
}

} // namespace orvalis
