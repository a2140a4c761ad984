// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_watch.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace orvalis {

namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

constexpr int BusTimeoutMs = 500;
// A tray that comes up late may be noticed late; the icon window stands in until then. The X
// server has no cheaper sign of a tray that dies than to ask for it.
constexpr auto LookEvery = 2s;

const QString WatcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString WatcherPath = u"/StatusNotifierWatcher"_s;

bool hostIsRegistered() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage ask = QDBusMessage::createMethodCall(
        WatcherService, WatcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    ask << WatcherService << u"IsStatusNotifierHostRegistered"_s;
    ask.setAutoStartService(false);
    const QDBusMessage reply = bus.call(ask, QDBus::Block, BusTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return false;
    return reply.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

bool traySelectionIsOwned() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Platforms without a display server answer too, with no connection.
    if (x11 == nullptr || x11->connection() == nullptr)
        return false;
    xcb_connection_t* connection = x11->connection();
    // Desktops put one tray on the first screen; Qt docks there too.
    const QByteArray name("_NET_SYSTEM_TRAY_S0");
    const auto atom = owned(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, true, name.size(), name.constData()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const auto owner = owned(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

DesktopTrayWatch::DesktopTrayWatch() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        auto* watcher = new QDBusServiceWatcher(WatcherService, bus,
                                                QDBusServiceWatcher::WatchForOwnerChange, this);
        connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayWatch::changed);
        for (const auto& signal :
             {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
            bus.connect(WatcherService, WatcherPath, WatcherService, signal, this,
                        SIGNAL(changed()));
    }
    m_lookForXEmbed.setInterval(LookEvery);
    connect(&m_lookForXEmbed, &QTimer::timeout, this, [this] {
        if (const bool has = traySelectionIsOwned(); has != m_hadXEmbed) {
            m_hadXEmbed = has;
            emit changed();
        }
    });
}

bool DesktopTrayWatch::has(TrayKind kind) {
    return kind == TrayKind::StatusNotifier ? hostIsRegistered() : traySelectionIsOwned();
}

void DesktopTrayWatch::setAwake(bool awake) {
    m_hadXEmbed = traySelectionIsOwned();
    const bool onX11 = QGuiApplication::platformName() == u"xcb"_s;
    if (awake && onX11)
        m_lookForXEmbed.start();
    else
        m_lookForXEmbed.stop();
}

} // namespace orvalis
