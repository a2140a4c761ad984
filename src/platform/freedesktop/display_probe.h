// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace orvalis {

/// The size of the primary screen in the units that windows would be measured in if nobody scaled
/// further: what the display server, the desktop and the user's scale factor say. It needs no
/// application object and costs a few round trips. Empty where the platform that Qt will use is no
/// desktop, or cannot be asked.
std::optional<QSizeF> primaryScreenSize();

/// Which display server Qt is going to use.
enum class DisplayServer { None, X11, Wayland };
DisplayServer displayServer();

/// The factor that a list such as "HDMI-1=2;eDP-1=1.5" gives a screen, by its name or, in a list
/// without names, the first.
std::optional<double> listedFactor(QByteArrayView list, const QByteArray& screen);

} // namespace orvalis
