// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/skin_picture.h"

#include "skin/skin.h"

namespace orvalis {

PictureSource skinPicture(const QString& name) {
    return {skin::size(name),
            [name](const QSize& size, qreal ratio) { return skin::pixmap(name, size, ratio); }};
}

} // namespace orvalis
