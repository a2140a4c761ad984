// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/picture_button.h"

#include "controls/image.h"
#include "core/skin_picture.h"

namespace orvalis {

using namespace Qt::StringLiterals;

Image* pictureButton(QWidget& parent, const QString& name, const QRect& place,
                     const QString& toolTip, const QString& picture) {
    auto* image = new Image(name, &parent);
    image->setGeometry(place);
    image->setPicture(skinPicture(picture));
    image->setHoverPicture(skinPicture(picture + u"_hover"_s));
    image->setToolTip(toolTip);
    image->setTabStop(true);
    return image;
}

} // namespace orvalis
