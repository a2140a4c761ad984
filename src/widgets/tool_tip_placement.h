// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace orvalis {

/// What decides where a tool tip window stands. All in logical pixels of the desktop.
struct ToolTipRequest {
    /// Size of the window, a balloon's stem included.
    QSize size;
    bool balloon = false;
    /// Centred under the tool instead of standing at the pointer.
    bool centered = false;
    QPoint pointer;
    /// Height of the pointer's own picture below its hot spot, which the tip keeps clear of.
    int pointerHeight = 20;
    /// The area of the control that the tip belongs to.
    QRect tool;
    QRect screen;
};

struct ToolTipPlace {
    QPoint position;
    /// Whether the window stands above what it points at, its stem on the lower side.
    bool above = false;
    /// Where a balloon's stem points at, from the window's left edge.
    int stemX = 0;

    friend bool operator==(const ToolTipPlace&, const ToolTipPlace&) = default;
};

/// How far from a balloon's side its stem stands at least.
constexpr int BalloonStemInset = 16;

/// A rectangle stands below the pointer or, centred, below its tool, and above it where there is no
/// room. A balloon stands above the pointer, its stem on it, and below where there is no room;
/// centred, below the tool with the stem on the tool's middle, and above where there is no room.
/// The window is kept inside the screen.
ToolTipPlace placeToolTip(const ToolTipRequest& request);

} // namespace orvalis
