// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/dialog_controls.h"

#include "core/button_look.h"
#include "skin/type.h"
#include "widgets/gg_command.h"

#include <QGroupBox>
#include <QRadioButton>

namespace orvalis {

QFont dialogFont() {
    return skin::font(skin::points::Body);
}

QGroupBox* dialogFrame(QWidget& parent, const QString& name, const QString& caption,
                       const QRect& place) {
    auto* frame = new QGroupBox(caption, &parent);
    frame->setObjectName(name);
    frame->setGeometry(place);
    return frame;
}

QRadioButton* dialogOption(QWidget& parent, const QString& name, const QString& caption,
                           const QRect& place) {
    auto* option = new QRadioButton(caption, &parent);
    option->setObjectName(name);
    option->setGeometry(place);
    return option;
}

GGCommand* dialogButton(QWidget& parent, const QString& name, const QString& caption,
                        const QString& picture, const QRect& place) {
    auto* button = new GGCommand(name, &parent);
    button->setGeometry(place);
    button->setCaption(caption);
    button->setFont(dialogFont());
    wearPicture(*button, picture);
    wearLook(*button, skin::DialogButton);
    return button;
}

} // namespace orvalis
