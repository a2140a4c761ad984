// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace orvalis {

class WindowCutter;

/// Gives a window without frame the outline of its background picture on a desktop that cannot show
/// the transparency of its corners; without a cutter every desktop can. To be called when the
/// window shows.
void wearShape(QWidget& window, const QString& picture, WindowCutter* cutter);

} // namespace orvalis
