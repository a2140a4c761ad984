// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace orvalis {

/// A primary screen as the display server tells it.
struct DisplayScreen {
    QByteArray name;
    QSizeF size;       // in the server's units
    double factor = 1; // units of the server to one that the desktop asks programs to draw
};

/// The size of the primary screen in the units that windows would be measured in if nobody scaled
/// further: what the display server, the desktop and the user's scale factor say. It needs no
/// application object and costs a few round trips. Empty where the platform that Qt will use is no
/// desktop, or cannot be asked.
std::optional<QSizeF> primaryScreenSize();

/// The user's scale factor of the environment, 1 where there is none.
double userFactor();

/// Which display server Qt is going to use.
enum class DisplayServer { None, X11, Wayland };
DisplayServer displayServer();

/// The primary screen of the X11 display, its factor from the desktop's resolution. The connection
/// stays open: a server whose last client leaves starts anew, and Qt would wait for it.
std::optional<DisplayScreen> x11Screen();
/// Closes the connection of x11Screen().
void releaseX11Screen();
/// The first screen of the Wayland display, its size in the compositor's own units.
std::optional<DisplayScreen> waylandScreen();

/// The value of "Xft.dpi" in an X resource database, empty where it holds none.
std::optional<double> resolutionOfResources(QByteArrayView resources);
/// The value of "Xft/DPI" in the settings that a desktop publishes to its X11 clients.
std::optional<double> resolutionOfSettings(QByteArrayView settings);
/// The factor that a list such as "HDMI-1=2;eDP-1=1.5" gives a screen, by its name or, in a list
/// without names, the first.
std::optional<double> listedFactor(QByteArrayView list, const QByteArray& screen);

} // namespace orvalis
