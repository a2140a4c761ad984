// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktop_tray.h"

#include "platform/freedesktop/desktop_tray_watch.h"
#include "platform/freedesktop/system_tray_icon.h"
#include "platform/tray_window.h"

#include <utility>

namespace orvalis {

namespace {

std::unique_ptr<TrayIcon> makeOnDesktop(std::optional<TrayKind> kind) {
    if (kind.has_value())
        return std::make_unique<SystemTrayIcon>(*kind);
    return std::make_unique<StandInTrayIcon>();
}

} // namespace

DesktopTray::DesktopTray()
    : DesktopTray(std::make_unique<DesktopTrayWatch>(), makeOnDesktop) {}

DesktopTray::DesktopTray(std::unique_ptr<TrayWatch> watch, Maker maker)
    : m_watch(std::move(watch))
    , m_maker(std::move(maker)) {
    connect(m_watch.get(), &TrayWatch::changed, this, &DesktopTray::settle);
}

DesktopTray::~DesktopTray() = default;

std::unique_ptr<TrayIcon> DesktopTray::make(std::optional<TrayKind> kind) {
    auto icon = m_maker(kind);
    connect(icon.get(), &TrayIcon::mouse, this, &TrayIcon::mouse);
    return icon;
}

TrayIcon& DesktopTray::suitable() {
    if (!m_kind.has_value()) {
        // The order in which Qt looks.
        for (const TrayKind kind : {TrayKind::StatusNotifier, TrayKind::XEmbed}) {
            if (!m_watch->has(kind))
                continue;
            m_kind = kind;
            m_inTray = make(kind);
            return *m_inTray;
        }
    } else if (m_watch->has(*m_kind)) {
        return *m_inTray;
    }
    if (!m_standIn)
        m_standIn = make(std::nullopt);
    return *m_standIn;
}

void DesktopTray::add(const TrayRecord& record) {
    m_record = record;
    m_wanted = true;
    m_watch->setAwake(true);
    settle();
}

void DesktopTray::modify(const TrayRecord& record) {
    m_record = record;
    if (m_present != nullptr)
        m_present->modify(record);
}

void DesktopTray::remove(const TrayRecord& record) {
    m_wanted = false;
    m_watch->setAwake(false);
    if (m_present != nullptr)
        std::exchange(m_present, nullptr)->remove(record);
}

void DesktopTray::popUp() {
    if (m_present != nullptr)
        m_present->popUp();
}

void DesktopTray::settle() {
    if (!m_wanted || !m_watch->isSettled())
        return;
    TrayIcon& now = suitable();
    if (&now == m_present)
        return;
    if (m_present != nullptr)
        m_present->remove(m_record);
    m_present = &now;
    m_present->setMenu(m_menu);
    m_present->add(m_record);
}

} // namespace orvalis
