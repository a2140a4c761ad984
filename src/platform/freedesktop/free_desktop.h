// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dbus/session_bus.h"
#include "platform/dbus/session_bus_guard.h"
#include "platform/platform.h"
#include "platform/x11/x11_clipboard_owner.h"
#include "platform/x11/x11_window_cutter.h"
#include "platform/xdg/xdg_logon_entry.h"
#include "platform/xdg/xdg_mail.h"
#include "platform/xdg/xdg_shell.h"

#include <optional>

namespace orvalis {

/// A desktop of X11 or Wayland, with the session bus and the tools that such desktops share.
class FreeDesktop final : public Platform {
public:
    std::optional<QSizeF> primaryScreenSize() override;
    void applicationBegins() override;
    void applicationStands() override;
    void removeLeftovers() override { m_logonEntry.removeLeftovers(); }

    LogonEntry& logonEntry() override { return m_logonEntry; }
    Shell& shell() override { return m_shell; }
    Mail& mail() override { return m_mail; }
    WindowCutter& windowCutter() override { return m_windowCutter; }
    std::unique_ptr<TrayIcon> makeTray() override;

    bool clipboardAnswers() override { return m_clipboardOwner.answers(); }
    bool displayIsLost(QStringView warning) const override;

private:
    SessionBusQuestion m_bus;               ///< on its way while the screen is asked for
    std::optional<SessionBusGuard> m_guard; ///< from there on until the first windows are up
    XdgLogonEntry m_logonEntry;
    XdgShell m_shell;
    XdgMail m_mail;
    X11WindowCutter m_windowCutter;
    X11ClipboardOwner m_clipboardOwner;
};

} // namespace orvalis
