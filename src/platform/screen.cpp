// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace orvalis {

namespace {

constexpr int ScreenWidthIndex = 0;
constexpr int ScreenHeightIndex = 1;

/// Where a length that begins at \a start has to begin to lie between \a low and \a high.
int inside(int start, int length, int low, int high) {
    return std::max(low, std::min(start, high - length));
}

} // namespace

int Screen::GetSystemMetrics(int index) const {
    if (index == ScreenWidthIndex)
        return size().width();
    return index == ScreenHeightIndex ? size().height() : 0;
}

QSize DesktopScreen::size() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() : QSize();
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
