// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/free_desktop.h"

#include "platform/freedesktop/desktop_tray.h"
#include "platform/freedesktop/display_probe.h"
#include "platform/wayland/wayland_link.h"
#include "platform/x11/x11_screen.h"
#include "platform/x11/x11_toolkit.h"

#include <QCoreApplication>
#include <QTimer>

namespace orvalis {

std::unique_ptr<Platform> makePlatform() {
    return std::make_unique<FreeDesktop>();
}

std::optional<QSizeF> FreeDesktop::primaryScreenSize() {
    return orvalis::primaryScreenSize();
}

void FreeDesktop::applicationBegins() {
    hideSilentSessionBus(m_bus);
    m_guard.emplace();
}

void FreeDesktop::applicationStands() {
    releaseX11Screen();
    // Once events are served the first windows are up, and the toolkit has asked what it wants.
    QTimer::singleShot(0, qApp, [this] { m_guard.reset(); });
}

std::unique_ptr<TrayIcon> FreeDesktop::makeTray() {
    return std::make_unique<DesktopTray>();
}

bool FreeDesktop::displayIsLost(QStringView warning) const {
    return displayConnectionIsBroken() || tellsOfLostCompositor(warning);
}

} // namespace orvalis
