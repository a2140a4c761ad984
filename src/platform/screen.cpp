// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/screen.h"

#include "platform/interface_scale.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace orvalis {

namespace {

constexpr int ScreenWidthIndex = 0;
constexpr int ScreenHeightIndex = 1;
constexpr qreal WidestToHigh = 4.0 / 3;
/// A quotient's last digit must not cost a unit.
constexpr qreal UnitSlack = 1e-6;

int roundedDown(qreal units) {
    return static_cast<int>(std::floor(units + UnitSlack));
}

/// Where a length that begins at \a start has to begin to lie between \a low and \a high.
int inside(int start, int length, int low, int high) {
    return std::max(low, std::min(start, high - length));
}

} // namespace

int Screen::GetSystemMetrics(int index) const {
    const QSizeF screen = size();
    if (index == ScreenWidthIndex)
        return roundedDown(std::min(screen.width(), screen.height() * WidestToHigh));
    return index == ScreenHeightIndex ? roundedDown(screen.height()) : 0;
}

QSizeF DesktopScreen::size() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? unroundedSize(screen->size()) : QSizeF();
}

QRect DesktopScreen::workArea() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

QRect keptInside(QRect window, QRect area) {
    window.moveTo(inside(window.x(), window.width(), area.x(), area.x() + area.width()),
                  inside(window.y(), window.height(), area.y(), area.y() + area.height()));
    return window;
}

} // namespace orvalis
