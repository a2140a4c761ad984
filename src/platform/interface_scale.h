// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

#include <optional>

namespace orvalis {

/// The environment's variable by which the user scales programs, and by which Qt is told here.
constexpr const char* ScaleVariable = "QT_SCALE_FACTOR";

/// How much larger than drawn the windows are on a screen of that size, in the desktop's own units:
/// the largest multiple of an eighth at which a desktop of 800 by 600 fits, at least 1.
double interfaceScale(double width, double height);

/// The user's scale factor of the environment, 1 where there is none.
double userFactor();

/// Makes Qt draw everything at the interface scale of a primary screen of that size, on top of the
/// scale that the user asks for. To be called before the application object is made.
/// \param screen in units of the desktop; empty where no size could be found.
/// \returns the interface scale, 1 where there is no size.
double applyInterfaceScale(std::optional<QSizeF> screen);

/// Takes back what applyInterfaceScale() put into the environment. To be called once the
/// application object is made.
void withdrawInterfaceScale();

/// The size of a screen in scaled units, which Qt tells in whole ones: with its fractions where it
/// is the screen that applyInterfaceScale() was given, otherwise as it is told.
QSizeF unroundedSize(QSize told);

} // namespace orvalis
