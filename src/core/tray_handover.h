// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/tray_owner.h"

#include <QIcon>
#include <QObject>

#include <memory>

namespace orvalis {

class ChromeWindow;
class TrayIcon;
class frmSysTray;

/// A window's hand-over to the tray: the menu, tip and icon that stand for it there, what they do,
/// and the way back. The words come from the window's row in the chrome's table.
class TrayHandover final : public QObject, public TrayOwner {
    Q_OBJECT
public:
    TrayHandover(ChromeWindow& window, TrayIcon& tray);
    ~TrayHandover() override;

    void TrayBuild() override;
    void TrayReset() override;

    /// The tray form while the window is in the tray.
    frmSysTray* trayForm() const { return m_frmSysTray.get(); }

private:
    void MenuClick(const QString& key);
    void SysTrayDoubleClick(int button);
    void SysTrayMouseDown(int button);
    void SysTrayMouseMove();
    void restore();
    void unloadTrayForm();
    void close();

    ChromeWindow& m_window;
    TrayIcon& m_tray;
    QIcon m_idleIcon;
    QIcon m_armedIcon;
    std::unique_ptr<frmSysTray> m_frmSysTray;
};

} // namespace orvalis
