// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_watch.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
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
    m_lookForXEmbed.setInterval(LookEvery);
    connect(&m_lookForXEmbed, &QTimer::timeout, this, [this] {
        if (const bool has = traySelectionIsOwned(); has != m_hadXEmbed) {
            m_hadXEmbed = has;
            emit changed();
        }
    });
}

void DesktopTrayWatch::listenToBus() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (m_listens || !bus.isConnected())
        return;
    m_listens = true;
    auto* watcher = new QDBusServiceWatcher(WatcherService, bus,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &DesktopTrayWatch::askBus);
    // From whoever sends them: to hear of one service alone, the bus would be asked who that is,
    // and waited for.
    for (const auto& signal :
         {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        bus.connect({}, WatcherPath, WatcherService, signal, this, SLOT(askBus()));
}

void DesktopTrayWatch::askBus() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage question = QDBusMessage::createMethodCall(
        WatcherService, WatcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << WatcherService << u"IsStatusNotifierHostRegistered"_s;
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question, BusTimeoutMs), this);
    ++m_questions;
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* call) {
                const QDBusPendingReply<QDBusVariant> reply = *call;
                call->deleteLater();
                takeAnswer(!reply.isError() && reply.value().variant().toBool());
            });
}

void DesktopTrayWatch::takeAnswer(bool hostIsRegistered) {
    m_hasHost = hostIsRegistered;
    if (--m_questions == 0)
        emit changed();
}

bool DesktopTrayWatch::has(TrayKind kind) {
    return kind == TrayKind::StatusNotifier ? m_hasHost : traySelectionIsOwned();
}

void DesktopTrayWatch::setAwake(bool awake) {
    if (awake) {
        listenToBus();
        askBus();
    }
    m_hadXEmbed = traySelectionIsOwned();
    const bool onX11 = QGuiApplication::platformName() == u"xcb"_s;
    if (awake && onX11)
        m_lookForXEmbed.start();
    else
        m_lookForXEmbed.stop();
}

} // namespace orvalis
