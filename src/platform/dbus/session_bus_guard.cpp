// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/dbus/session_bus_guard.h"

#include "platform/dbus/session_bus.h"

#include <QByteArray>
#include <QDir>

#include <cstddef>

#include <sys/socket.h>
#include <sys/un.h>

namespace orvalis {

namespace {

/// The name of the socket that the other end of a connection was made at; empty for what is none.
QByteArray peerOf(int connection) {
    sockaddr_un address{};
    socklen_t length = sizeof(address);
    if (getpeername(connection, reinterpret_cast<sockaddr*>(&address), &length) != 0 ||
        address.sun_family != AF_UNIX || length <= offsetof(sockaddr_un, sun_path))
        return {};
    const auto size = static_cast<qsizetype>(length - offsetof(sockaddr_un, sun_path));
    // Of an abstract name every byte counts; a path ends with its NUL.
    return address.sun_path[0] == '\0' ? QByteArray(address.sun_path, size)
                                       : QByteArray(address.sun_path);
}

/// Ends every connection of this program to the bus that listens under a name.
void endConnectionsTo(const QByteArray& bus) {
    const QStringList numbers =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::Files);
    for (const QString& number : numbers)
        if (peerOf(number.toInt()) == bus)
            shutdown(number.toInt(), SHUT_RDWR);
}

} // namespace

SessionBusGuard::SessionBusGuard(std::chrono::milliseconds patience)
    : m_watch([this, patience] { watch(patience); }) {}

SessionBusGuard::~SessionBusGuard() {
    {
        const std::scoped_lock lock(m_mutex);
        m_ends = true;
    }
    m_ending.notify_one();
    m_watch.join();
}

void SessionBusGuard::watch(std::chrono::milliseconds patience) {
    std::unique_lock lock(m_mutex);
    while (!m_ending.wait_for(lock, patience, [this] { return m_ends; })) {
        lock.unlock();
        if (!SessionBusQuestion().isAnswered(patience))
            endConnectionsTo(sessionBusSocket());
        lock.lock();
    }
}

} // namespace orvalis
