// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/display_link.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

namespace orvalis {

bool displayIsLost(QStringView warning) {
    if (const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        x11 != nullptr && x11->connection() != nullptr)
        return xcb_connection_has_error(x11->connection()) != 0;
    // The toolkit hands out no connection to a compositor before its version 6.5.
    return QGuiApplication::platformName().startsWith(u"wayland") &&
           warning.startsWith(u"The Wayland connection");
}

} // namespace orvalis
