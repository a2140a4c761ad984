// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QSizeF>

namespace orvalis::rtf {

/// The size in twips that the head of a metafile names: the frame of an enhanced one, the box of
/// a placeable one. Empty where there is none, or one without width or height.
QSizeF metafileTwips(QByteArrayView metafile);

} // namespace orvalis::rtf
