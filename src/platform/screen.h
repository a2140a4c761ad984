// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

namespace orvalis {

/// The user's primary screen, in the units that windows are measured in.
class Screen {
public:
    virtual ~Screen() = default;

    virtual QSize size() const = 0;
    /// The part of the screen that windows may cover, free of panels.
    virtual QRect workArea() const = 0;

    /// The screen's width for 0, its height for 1, 0 for any other index.
    int GetSystemMetrics(int index) const;
};

/// The primary screen of the desktop. Needs the application object.
class DesktopScreen final : public Screen {
public:
    QSize size() const override;
    QRect workArea() const override;
};

/// The window moved, as little as possible, so that it lies inside the area; one larger than the
/// area lies at its upper left corner.
QRect keptInside(QRect window, QRect area);

} // namespace orvalis
