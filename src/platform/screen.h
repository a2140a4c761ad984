// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSizeF>

namespace orvalis {

/// The user's primary screen, in the units that windows are measured in.
class Screen {
public:
    virtual ~Screen() = default;

    /// A scaled screen need not be a whole number of units wide or high.
    virtual QSizeF size() const = 0;
    /// The part of the screen that windows may cover, free of panels.
    virtual QRect workArea() const = 0;

    /// The width of the desktop that windows are drawn for, for 0: the screen's own, at most four
    /// thirds of its height, since a wide screen makes no letters larger and so is to make none
    /// smaller. The screen's height for 1, 0 for any other index. Rounded down.
    int GetSystemMetrics(int index) const;
};

/// The primary screen of the desktop. Needs the application object.
class DesktopScreen final : public Screen {
public:
    QSizeF size() const override;
    QRect workArea() const override;
};

/// The window moved, as little as possible, so that it lies inside the area; one larger than the
/// area lies at its upper left corner.
QRect keptInside(QRect window, QRect area);

} // namespace orvalis
