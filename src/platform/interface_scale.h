// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSizeF>

namespace orvalis {

/// The environment's variable by which the user scales programs, and by which Qt is told here.
constexpr const char* ScaleVariable = "QT_SCALE_FACTOR";

/// How much larger than drawn the windows are on a screen of that size, in the desktop's own units:
/// the largest multiple of an eighth at which a desktop of 800 by 600 fits, at least 1.
double interfaceScale(double width, double height);

/// Finds the primary screen's size and makes Qt draw everything at its interface scale, on top of
/// the scale that the user asks for. To be called before the application object is made.
/// \returns the interface scale, 1 where no screen's size could be found.
double applyInterfaceScale();

/// Takes back what applyInterfaceScale() put into the environment, so that no program that we start
/// inherits it, and lets go of the display. To be called once the application object is made.
void withdrawInterfaceScale();

/// The size of a screen in scaled units, which Qt tells in whole ones: with its fractions where it
/// is the screen that applyInterfaceScale() found, otherwise as it is told.
QSizeF unroundedSize(QSize told);

/// The user's own scale factor as the environment had it before us, empty where it had none.
QByteArray userScaleFactor();

} // namespace orvalis
