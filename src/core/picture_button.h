// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace orvalis {

class Image;

/// A picture of the skin that is a button: it has a hover picture, and the keyboard reaches it.
/// \param toolTip also its spoken name; a picture without one is to be given a name.
/// \param picture its name in the skin; with "_hover" added the hover picture's.
Image* pictureButton(QWidget& parent, const QString& name, const QRect& place,
                     const QString& toolTip, const QString& picture);

} // namespace orvalis
