// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/button_look.h"

#include "core/skin_picture.h"
#include "widgets/gg_command.h"

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
    constexpr int LeftMiddle = 1;
    constexpr int PictureInset = 5;
    constexpr int CaptionInset = 8;
    button.setPicture(skinPicture(picture));
    button.setPictureAlignment(LeftMiddle);
    button.setPictureXOffset(PictureInset);
    button.setCaptionXOffset(CaptionInset);
}

} // namespace orvalis
