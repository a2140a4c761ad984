// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/dbus/session_bus.h"

#include "platform/child_environment.h"

#include <QList>
#include <QtEndian>

#include <cerrno>
#include <cstddef>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace orvalis {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr char AddressVariable[] = "DBUS_SESSION_BUS_ADDRESS";
/// An address of no kind that there is.
constexpr char NoBus[] = "disabled:";
/// A bus in good health answers within a millisecond; on a machine that is busy with a log-in it
/// may take its time. Nobody with a bus that works ever waits as long as this.
constexpr milliseconds BusPatience{500};

void pad(QByteArray& message, qsizetype alignment) {
    while (message.size() % alignment != 0)
        message += '\0';
}

void appendNumber(QByteArray& message, quint32 number) {
    char bytes[sizeof(number)];
    qToLittleEndian(number, bytes);
    message.append(bytes, sizeof(number));
}

void appendField(QByteArray& fields, char code, char type, const QByteArray& text) {
    pad(fields, 8);
    fields += code;
    fields += '\1';
    fields += type;
    fields += '\0';
    appendNumber(fields, static_cast<quint32>(text.size()));
    fields += text;
    fields += '\0';
}

/// The first message of every client, which asks for its name.
QByteArray helloMessage() {
    QByteArray fields;
    appendField(fields, 1, 'o', "/org/freedesktop/DBus");
    appendField(fields, 2, 's', "org.freedesktop.DBus");
    appendField(fields, 3, 's', "Hello");
    appendField(fields, 6, 's', "org.freedesktop.DBus");
    QByteArray message("l\1\0\1", 4); // little-endian, a call, no flags, version of the protocol
    appendNumber(message, 0);         // no body
    appendNumber(message, 1);         // serial number
    appendNumber(message, static_cast<quint32>(fields.size()));
    message += fields;
    pad(message, 8);
    return message;
}

/// All that a client says until it has its name, in one go.
QByteArray greeting() {
    const QByteArray user = QByteArray::number(geteuid()).toHex();
    return '\0' + QByteArray("AUTH EXTERNAL ") + user + "\r\nBEGIN\r\n" + helloMessage();
}

/// Whether what came back shows that the bus is at work: a refusal of our identity, or an
/// acceptance and something behind it.
bool isAnswer(QByteArrayView bytes) {
    const qsizetype end = bytes.indexOf('\n');
    return end >= 0 && (!bytes.startsWith("OK ") || end + 1 < bytes.size());
}

} // namespace

QByteArray sessionBusSocket() {
    const QByteArray addresses = qgetenv(AddressVariable);
    if (addresses.isEmpty()) {
        const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
        return folder.isEmpty() ? QByteArray() : folder + "/bus";
    }
    for (const QByteArray& address : addresses.split(';')) {
        if (!address.startsWith("unix:"))
            continue;
        for (const QByteArray& part : address.mid(5).split(',')) {
            if (part.startsWith("path="))
                return QByteArray::fromPercentEncoding(part.mid(5));
            if (part.startsWith("abstract="))
                return '\0' + QByteArray::fromPercentEncoding(part.mid(9));
        }
    }
    return {};
}

SessionBusQuestion::SessionBusQuestion() {
    if (const QByteArray name = sessionBusSocket(); !name.isEmpty())
        connectTo(name);
}

SessionBusQuestion::~SessionBusQuestion() {
    if (m_socket >= 0)
        close(m_socket);
}

void SessionBusQuestion::connectTo(const QByteArray& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() >= static_cast<qsizetype>(sizeof(address.sun_path)))
        return;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size() +
                                               (name.startsWith('\0') ? 0 : 1));
    m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const auto* place = reinterpret_cast<const sockaddr*>(&address);
    // A bus whose queue of clients is full takes none at once, and has not answered.
    if (m_socket < 0 || (::connect(m_socket, place, length) != 0 && errno != EAGAIN)) {
        if (m_socket >= 0)
            close(m_socket);
        m_socket = -1;
        return;
    }
    const QByteArray words = greeting();
    [[maybe_unused]] const ssize_t sent =
        send(m_socket, words.constData(), static_cast<std::size_t>(words.size()), MSG_NOSIGNAL);
}

bool SessionBusQuestion::isAnswered(milliseconds patience) {
    if (m_socket < 0)
        return true;
    const auto end = steady_clock::now() + patience;
    QByteArray answer;
    while (!isAnswer(answer)) {
        const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
        pollfd readable{m_socket, POLLIN, 0};
        if (left.count() <= 0 || poll(&readable, 1, static_cast<int>(left.count())) == 0)
            return false;
        char bytes[1024];
        const ssize_t length = recv(m_socket, bytes, sizeof(bytes), 0);
        if (length < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (length < 0 && errno != ECONNRESET)
            return false; // it never took the connection
        if (length <= 0)
            return true; // it hung up, which the toolkit notices as well
        answer.append(bytes, length);
    }
    return true;
}

void hideSilentSessionBus(SessionBusQuestion& question) {
    if (question.isAnswered(BusPatience))
        return;
    setForUsAlone(AddressVariable, NoBus);
}

} // namespace orvalis
