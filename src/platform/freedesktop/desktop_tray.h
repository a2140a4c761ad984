// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/tray_watch.h"
#include "platform/tray_icon.h"

#include <functional>
#include <memory>
#include <optional>

namespace orvalis {

/// The program's tray icon wherever it can be: in the desktop's tray while there is one, otherwise
/// in a window of its own. It changes over when a tray comes or goes, so the program can always be
/// reached.
///
/// Qt settles at its first tray icon which kind of tray it will use for the whole run; therefore
/// that icon is made only when a tray is there, and the kind found then is kept. Until it is known
/// which trays there are, a moment behind add(), the icon is nowhere.
class DesktopTray final : public TrayIcon {
    Q_OBJECT
public:
    /// Makes the icon in a tray of the kind given, or, without a kind, the one that stands in.
    using Maker = std::function<std::unique_ptr<TrayIcon>(std::optional<TrayKind>)>;

    /// The real desktop.
    DesktopTray();
    DesktopTray(std::unique_ptr<TrayWatch> watch, Maker maker);
    ~DesktopTray() override;

    void setMenu(QMenu* menu) override { m_menu = menu; }
    void add(const TrayRecord& record) override;
    void modify(const TrayRecord& record) override;
    void remove(const TrayRecord& record) override;
    void popUp() override;

private:
    TrayIcon& suitable();
    void settle();
    std::unique_ptr<TrayIcon> make(std::optional<TrayKind> kind);

    std::unique_ptr<TrayWatch> m_watch;
    Maker m_maker;
    std::optional<TrayKind> m_kind;
    std::unique_ptr<TrayIcon> m_inTray;
    std::unique_ptr<TrayIcon> m_standIn;
    TrayIcon* m_present = nullptr;
    bool m_wanted = false; ///< the icon is to be somewhere
    TrayRecord m_record;
    QMenu* m_menu = nullptr;
};

} // namespace orvalis
