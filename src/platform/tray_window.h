// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/tray_icon.h"

#include <QPointer>
#include <QWidget>

namespace orvalis {

/// The small window at the lower right corner of the screen that shows the tray icon where the
/// desktop has no tray.
class TrayWindow final : public QWidget {
    Q_OBJECT
public:
    static constexpr int Side = 40;

    TrayWindow();

    void setIcon(const QIcon& icon);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void moveToCorner();

    QIcon m_icon;
};

/// A tray icon of our own, shown in a `TrayWindow`.
class StandInTrayIcon final : public TrayIcon {
    Q_OBJECT
public:
    StandInTrayIcon();

    void setMenu(QMenu* menu) override;
    void add(const TrayRecord& record) override;
    void modify(const TrayRecord& record) override;
    void remove(const TrayRecord& record) override;
    void popUp() override;

    const TrayWindow& window() const { return m_window; }

private:
    TrayWindow m_window;
    QPointer<QMenu> m_menu;
};

} // namespace orvalis
