// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/system_tray_icon.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QScopedValueRollback>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

/// Qt's window in an XEmbed tray. It is the only way to the pointer's moves and releases, which
/// QSystemTrayIcon does not tell.
QWidget* embeddedWindow() {
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->objectName() == u"QSystemTrayIconSys"_s)
            return window;
    return nullptr;
}

} // namespace

SystemTrayIcon::SystemTrayIcon(TrayKind kind)
    : m_kind(kind) {
    // Told once the embedded window is done with its event: the way back from the tray takes that
    // window away.
    connect(&m_codes, &TrayMouseCodes::mouse, this, &TrayIcon::mouse, Qt::QueuedConnection);
}

SystemTrayIcon::~SystemTrayIcon() = default;

void SystemTrayIcon::setMenu(QMenu* menu) {
    m_menu = menu;
    if (menu == nullptr)
        return;
    // Qt keeps no hold on a menu that goes away under its icon.
    connect(menu, &QObject::destroyed, this, [this] { m_icon.reset(); });
    if (m_kind == TrayKind::StatusNotifier)
        connect(menu, &QMenu::aboutToShow, this, &SystemTrayIcon::hostShowsMenu);
}

void SystemTrayIcon::add(const TrayRecord& record) {
    m_icon = std::make_unique<QSystemTrayIcon>();
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, &SystemTrayIcon::activated);
    if (m_kind == TrayKind::StatusNotifier && m_menu)
        m_icon->setContextMenu(m_menu);
    m_icon->setIcon(record.hIcon);
    m_icon->setToolTip(record.szTip.text());
    m_icon->show();
    watchEmbeddedWindow();
}

void SystemTrayIcon::watchEmbeddedWindow() {
    if (m_kind != TrayKind::XEmbed || m_codes.isWatching())
        return;
    if (QWidget* window = embeddedWindow())
        m_codes.watch(window);
}

void SystemTrayIcon::modify(const TrayRecord& record) {
    if (!m_icon)
        return;
    if ((record.uFlags & TrayRecord::IconChanged) != 0)
        m_icon->setIcon(record.hIcon);
    if ((record.uFlags & TrayRecord::TipChanged) != 0)
        m_icon->setToolTip(record.szTip.text());
}

void SystemTrayIcon::remove(const TrayRecord& /*record*/) {
    if (!m_icon)
        return;
    // The icon goes at once, but the object may be in the middle of telling of a click.
    m_icon->hide();
    m_icon.release()->deleteLater();
    if (m_menu)
        m_menu->disconnect(this);
}

void SystemTrayIcon::popUp() {
    if (m_hostShowsMenu || !m_menu)
        return;
    const QScopedValueRollback own(m_ownPopUp, true);
    m_menu->popup(QCursor::pos());
}

void SystemTrayIcon::hostShowsMenu() {
    if (m_ownPopUp)
        return;
    const QScopedValueRollback shows(m_hostShowsMenu, true);
    emit mouse(TrayMouse::Move);
    emit mouse(TrayMouse::RightDown);
    emit mouse(TrayMouse::RightUp);
}

void SystemTrayIcon::activated(QSystemTrayIcon::ActivationReason reason) {
    if (m_codes.isWatching())
        return;
    emit mouse(TrayMouse::Move);
    switch (reason) {
    case QSystemTrayIcon::Trigger:
        leftClick();
        break;
    case QSystemTrayIcon::DoubleClick:
        emit mouse(TrayMouse::LeftDoubleClick);
        emit mouse(TrayMouse::LeftUp);
        break;
    case QSystemTrayIcon::Context:
        emit mouse(TrayMouse::RightDown);
        emit mouse(TrayMouse::RightUp);
        break;
    case QSystemTrayIcon::MiddleClick:
    case QSystemTrayIcon::Unknown:
        break;
    }
}

void SystemTrayIcon::leftClick() {
    const bool second =
        m_sinceClick.isValid() && !m_sinceClick.hasExpired(QApplication::doubleClickInterval());
    if (second)
        m_sinceClick.invalidate();
    else
        m_sinceClick.start();
    emit mouse(second ? TrayMouse::LeftDoubleClick : TrayMouse::LeftDown);
    emit mouse(TrayMouse::LeftUp);
}

} // namespace orvalis
