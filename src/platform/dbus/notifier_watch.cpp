// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/dbus/notifier_watch.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr int BusTimeoutMs = 500;

const QString WatcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString WatcherPath = u"/StatusNotifierWatcher"_s;

} // namespace

void NotifierWatch::listen() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (m_listens || !bus.isConnected())
        return;
    m_listens = true;
    auto* watcher = new QDBusServiceWatcher(WatcherService, bus,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &NotifierWatch::ask);
    // From whoever sends them: to hear of one service alone, the bus would be asked who that is,
    // and waited for.
    for (const auto& signal :
         {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        bus.connect({}, WatcherPath, WatcherService, signal, this, SLOT(ask()));
}

void NotifierWatch::ask() {
    listen();
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

void NotifierWatch::takeAnswer(bool hostIsRegistered) {
    m_hasHost = hostIsRegistered;
    if (--m_questions == 0)
        emit changed();
}

} // namespace orvalis
