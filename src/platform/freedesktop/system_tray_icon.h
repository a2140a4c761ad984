// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/tray_watch.h"
#include "platform/tray_icon.h"
#include "platform/tray_mouse.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QSystemTrayIcon>

#include <memory>

namespace orvalis {

/// The icon in the desktop's own tray, of the kind given.
///
/// An XEmbed tray hands on what the pointer does. A StatusNotifier host tells less: that the icon
/// was activated, or that its menu is wanted, which it may also show by itself from a copy. What it
/// leaves out is added, so that the numbers come in the order in which a tray would tell them.
class SystemTrayIcon final : public TrayIcon {
    Q_OBJECT
public:
    explicit SystemTrayIcon(TrayKind kind);
    ~SystemTrayIcon() override;

    void setMenu(QMenu* menu) override;
    void add(const TrayRecord& record) override;
    void modify(const TrayRecord& record) override;
    void remove(const TrayRecord& record) override;
    void popUp() override;

private:
    void activated(QSystemTrayIcon::ActivationReason reason);
    void hostShowsMenu();
    void leftClick();
    void watchEmbeddedWindow();

    TrayKind m_kind;
    QPointer<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    TrayMouseCodes m_codes;
    QElapsedTimer m_sinceClick;
    bool m_hostShowsMenu = false;
    bool m_ownPopUp = false;
};

} // namespace orvalis
