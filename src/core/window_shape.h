// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace orvalis {

/// Gives a window without frame the outline of its background picture on a desktop that cannot show
/// the transparency of its corners. To be called when the window shows.
void wearShape(QWidget& window, const QString& picture);

} // namespace orvalis
