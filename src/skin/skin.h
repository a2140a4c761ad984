// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QStringView>

class QPainter;

/// The pictures of the windows and buttons. Each was drawn as SVG and recorded at build time; here
/// the record is replayed at whatever size and device pixel ratio is asked for.
namespace orvalis::skin {

/// The names of all pictures, sorted.
QStringList names();

bool exists(QStringView name);

/// The size at which the picture was drawn, in logical pixels; empty for an unknown name.
QSize size(QStringView name);

/// The picture at a size in logical pixels. The same name, size and ratio give the same pixmap, by
/// its cache key too, for the life of the program. An unknown name gives a null pixmap.
QPixmap pixmap(QStringView name, QSize logicalSize, qreal devicePixelRatio);

/// The picture at the size at which it was drawn.
QPixmap pixmap(QStringView name, qreal devicePixelRatio);

/// An icon that is drawn anew for each size that is asked of it; null for an unknown name.
QIcon icon(QStringView name);

/// Replays the picture into a rectangle of the painter's own coordinates.
void paint(QPainter& painter, QStringView name, const QRectF& target);

} // namespace orvalis::skin
