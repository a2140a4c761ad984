// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/button_look.h"

#include "core/skin_picture.h"
#include "widgets/gg_command.h"

#include <QFontMetrics>

namespace orvalis {

void wearLook(GGCommand& button, const skin::ButtonLook& look) {
    button.setBackColor(look.backColor);
    button.setGradientFromColor(look.gradientFromColor);
    button.setGradientToColor(look.gradientToColor);
    button.setForeColor(look.foreColor);
    button.setFontColorOnHover(look.fontColorOnHover);
    button.setAlwaysShowBorder(look.alwaysShowBorder);
}

void wearPicture(GGCommand& button, const QString& picture) {
    constexpr int Middle = 4;
    constexpr int Gap = 5;
    button.setPicture(skinPicture(picture));
    // Both stand in the middle, each moved aside by half of what the other one takes.
    const int words = QFontMetrics(button.font()).horizontalAdvance(button.Caption());
    button.setPictureAlignment(Middle);
    button.setPictureXOffset(-(words + Gap) / 2);
    button.setCaptionAlignment(Middle);
    button.setCaptionXOffset((button.Picture().size().width() + Gap) / 2);
}

} // namespace orvalis
