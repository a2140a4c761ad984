// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktop_tray_watch.h"

namespace orvalis {

DesktopTrayWatch::DesktopTrayWatch() {
    connect(&m_bus, &NotifierWatch::changed, this, &TrayWatch::changed);
    connect(&m_display, &XEmbedWatch::changed, this, &TrayWatch::changed);
}

bool DesktopTrayWatch::has(TrayKind kind) {
    return kind == TrayKind::StatusNotifier ? m_bus.hasHost() : XEmbedWatch::hasTray();
}

void DesktopTrayWatch::setAwake(bool awake) {
    if (awake)
        m_bus.ask();
    m_display.setAwake(awake);
}

} // namespace orvalis
