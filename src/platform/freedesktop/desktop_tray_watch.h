// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dbus/notifier_watch.h"
#include "platform/freedesktop/tray_watch.h"
#include "platform/x11/xembed_watch.h"

namespace orvalis {

/// Looks at the session bus for a StatusNotifier watcher with a host, and at the X server for the
/// owner of the tray selection. The bus is asked in passing: nothing waits for it.
class DesktopTrayWatch final : public TrayWatch {
    Q_OBJECT
public:
    DesktopTrayWatch();

    bool has(TrayKind kind) override;
    bool isSettled() const override { return m_bus.isSettled(); }
    void setAwake(bool awake) override;

private:
    NotifierWatch m_bus;
    XEmbedWatch m_display;
};

} // namespace orvalis
