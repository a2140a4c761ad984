// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QSizeF>

namespace orvalis::rtf {

/// The size in twips that the head of a metafile names: the frame of an enhanced one, the box of
/// a placeable one. Empty where there is none, or one without width or height.
QSizeF metafileTwips(QByteArrayView metafile);

/// The size in twips of the window in which a metafile without a box draws. Where its units have no
/// length of their own each is taken for a pixel, and what is too large for a page then for
/// something finer: it keeps its shape alone. Empty where there is no window.
QSizeF metafileWindowTwips(QByteArrayView metafile);

} // namespace orvalis::rtf
