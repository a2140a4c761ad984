// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/contact_photo.h"

#include "controls/load_picture.h"
#include "skin/palette.h"

#include <QPainter>
#include <QPainterPath>

namespace orvalis {

namespace {

constexpr qreal Corner = 4; // logical pixels
/// Enough for the place on the panel at four times its size.
constexpr qint64 MostPixels = 512 * 592;

QPixmap framed(const PictureSource& photo, const QSize& size, qreal ratio) {
    QPixmap frame(size * ratio);
    frame.setDevicePixelRatio(ratio);
    frame.fill(Qt::transparent);
    const QSize fitting = photo.size().scaled(size, Qt::KeepAspectRatio).expandedTo({1, 1});
    QRectF place(QPointF(), fitting);
    place.moveCenter(QRectF(QPointF(), size).center());
    QPainterPath outline;
    outline.addRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipPath(outline);
    painter.drawPixmap(place, photo.pixmap(fitting, ratio), QRectF(QPointF(), fitting * ratio));
    painter.setClipping(false);
    painter.setPen(QColor(skin::colour::Line));
    painter.drawPath(outline);
    return frame;
}

} // namespace

PictureSource contactPhoto(const QString& path) {
    const PictureSource photo = LoadPicture(path, MostPixels).picture;
    return PictureSource(photo.size(), [photo](const QSize& size, qreal ratio) {
        return framed(photo, size, ratio);
    });
}

} // namespace orvalis
