// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/xembed_watch.h"

#include "platform/x11/x11_toolkit.h"

namespace orvalis {

namespace {

using namespace std::chrono_literals;

// A tray that comes up late may be noticed late; the icon window stands in until then. The X
// server has no cheaper sign of a tray that dies than to ask for it.
constexpr auto LookEvery = 2s;
// Desktops put one tray on the first screen; Qt docks there too.
constexpr char TraySelection[] = "_NET_SYSTEM_TRAY_S0";

} // namespace

XEmbedWatch::XEmbedWatch() {
    m_look.setInterval(LookEvery);
    connect(&m_look, &QTimer::timeout, this, [this] {
        if (const bool has = hasTray(); has != m_had) {
            m_had = has;
            emit changed();
        }
    });
}

bool XEmbedWatch::hasTray() {
    return selectionIsOwned(TraySelection);
}

void XEmbedWatch::setAwake(bool awake) {
    m_had = hasTray();
    if (awake && toolkitConnection() != nullptr)
        m_look.start();
    else
        m_look.stop();
}

} // namespace orvalis
