// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QRect>

class QWidget;

namespace orvalis {

/// Cuts a window that has been created out of the desktop along its picture, in device pixels: a
/// widget's mask knows logical pixels alone, and would be jagged at every scale but the whole ones.
/// A null picture gives the window its rectangle back. Does nothing but on an X11 display.
void cutWindow(QWidget& window, const QImage& picture);

/// The rectangles that cover every pixel of the picture that is more than half opaque, from the
/// first such pixel of a row to its last, rows that are alike in one; in pixels of the picture.
QList<QRect> opaqueRows(const QImage& picture);

} // namespace orvalis
