// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_clipboard_owner.h"

#include "platform/x11/x11_reply.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstring>

#include <poll.h>

namespace orvalis {

namespace {

constexpr int PatienceMs = 100;
constexpr int BelievedSilentMs = 3000;

xcb_atom_t atomOf(xcb_connection_t* connection, const char* name) {
    const auto reply = held(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<quint16>(std::strlen(name)), name),
        nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

} // namespace

void X11ClipboardOwner::Disconnect::operator()(xcb_connection_t* connection) const {
    xcb_disconnect(connection);
}

X11ClipboardOwner::X11ClipboardOwner() = default;
X11ClipboardOwner::~X11ClipboardOwner() = default;

bool X11ClipboardOwner::open() {
    if (m_connection)
        return xcb_connection_has_error(m_connection.get()) == 0;
    int number = 0;
    m_connection.reset(xcb_connect(nullptr, &number));
    xcb_connection_t* connection = m_connection.get();
    if (xcb_connection_has_error(connection))
        return false;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    m_clipboard = atomOf(connection, "CLIPBOARD");
    m_targets = atomOf(connection, "TARGETS");
    m_window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, m_window, screens.data->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return true;
}

bool X11ClipboardOwner::answers() {
    // A connection to nowhere, or none at all, leaves the question to the toolkit.
    if (QGuiApplication::platformName() != QStringLiteral("xcb") || !open())
        return true;
    const auto owner = held(xcb_get_selection_owner_reply(
        m_connection.get(), xcb_get_selection_owner(m_connection.get(), m_clipboard), nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return true;
    if (owner->owner == m_silentOwner && !m_silentSince.hasExpired(BelievedSilentMs))
        return false;
    m_silentOwner = XCB_WINDOW_NONE;
    if (tells())
        return true;
    m_silentOwner = owner->owner;
    m_silentSince.start();
    return false;
}

bool X11ClipboardOwner::tells() {
    xcb_connection_t* connection = m_connection.get();
    const xcb_atom_t place = m_targets;
    // The answer to a question that was given up may have come since, and would be taken for this.
    while (held(xcb_poll_for_event(connection)) != nullptr)
        ;
    xcb_convert_selection(connection, m_window, m_clipboard, m_targets, place, XCB_CURRENT_TIME);
    xcb_flush(connection);
    QElapsedTimer asked;
    asked.start();
    for (;;) {
        while (const auto event = held(xcb_poll_for_event(connection)))
            if ((event->response_type & 0x7F) == XCB_SELECTION_NOTIFY) {
                xcb_delete_property(connection, m_window, place);
                xcb_flush(connection);
                return true;
            }
        const qint64 left = PatienceMs - asked.elapsed();
        pollfd readable{xcb_get_file_descriptor(connection), POLLIN, 0};
        if (left <= 0 || poll(&readable, 1, static_cast<int>(left)) == 0)
            return false;
        if (xcb_connection_has_error(connection))
            return true;
    }
}

} // namespace orvalis
