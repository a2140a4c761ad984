// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QImage;
class QWidget;

namespace orvalis {

/// Gives windows an outline on a desktop where transparent pixels show black instead of what lies
/// below them.
class WindowCutter {
public:
    virtual ~WindowCutter() = default;

    /// Whether windows have to be cut at present. It may change while the program runs.
    virtual bool isNeeded() const = 0;

    /// Cuts a window that has been created out of the desktop along its picture, in device pixels.
    /// A null picture gives the window its rectangle back.
    virtual void cut(QWidget& window, const QImage& picture) = 0;
};

} // namespace orvalis
