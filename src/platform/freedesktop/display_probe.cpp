// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/display_probe.h"

#include "platform/interface_scale.h"
#include "platform/wayland/wayland_screen.h"
#include "platform/x11/x11_screen.h"

#include <QList>

namespace orvalis {

namespace {

std::optional<double> positive(QByteArrayView text) {
    bool valid = false;
    const double number = text.trimmed().toDouble(&valid);
    return valid && number > 0 ? std::optional(number) : std::nullopt;
}

bool gnome() {
    return qgetenv("XDG_CURRENT_DESKTOP").toLower().contains("gnome");
}

/// How many of the server's units one unit of a window is, before the user's own factor. The order
/// is Qt's: a factor given for the screen, else the resolution.
double desktopFactor(const DisplayScreen& screen) {
    if (const auto listed = listedFactor(qgetenv("QT_SCREEN_SCALE_FACTORS"), screen.name))
        return *listed;
    if (qgetenv("QT_ENABLE_HIGHDPI_SCALING") == "0")
        return 1;
    return screen.factor;
}

} // namespace

DisplayServer displayServer() {
    const QByteArray asked = qgetenv("QT_QPA_PLATFORM");
    if (asked.startsWith("xcb"))
        return DisplayServer::X11;
    if (asked.startsWith("wayland"))
        return DisplayServer::Wayland;
    if (!asked.isEmpty())
        return DisplayServer::None;
    const bool wayland =
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    // Under GNOME Qt draws its window frames less well than X11 clients get them, and so avoids it.
    if (wayland && !(gnome() && !qEnvironmentVariableIsEmpty("DISPLAY")))
        return DisplayServer::Wayland;
    return qEnvironmentVariableIsEmpty("DISPLAY") ? DisplayServer::None : DisplayServer::X11;
}

std::optional<QSizeF> primaryScreenSize() {
    const DisplayServer server = displayServer();
    std::optional<DisplayScreen> screen;
    if (server == DisplayServer::Wayland)
        screen = waylandScreen();
    if (server == DisplayServer::X11 || (server == DisplayServer::Wayland && !screen))
        screen = x11Screen();
    if (!screen || screen->size.isEmpty())
        return std::nullopt;
    return screen->size / desktopFactor(*screen) / userFactor();
}

std::optional<double> listedFactor(QByteArrayView list, const QByteArray& screen) {
    for (const QByteArray& entry : list.toByteArray().split(';')) {
        const qsizetype equals = entry.indexOf('=');
        if (equals < 0 && !entry.trimmed().isEmpty())
            return positive(entry);
        if (equals >= 0 && entry.first(equals) == screen)
            return positive(entry.sliced(equals + 1));
    }
    return std::nullopt;
}

} // namespace orvalis
