// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wayland/wayland_link.h"

#include <QGuiApplication>

namespace orvalis {

bool tellsOfLostCompositor(QStringView warning) {
    return QGuiApplication::platformName().startsWith(u"wayland") &&
           warning.startsWith(u"The Wayland connection");
}

} // namespace orvalis
