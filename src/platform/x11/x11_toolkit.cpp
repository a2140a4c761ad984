// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_toolkit.h"

#include "platform/x11/x11_reply.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstring>

namespace orvalis {

xcb_connection_t* toolkitConnection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Platforms without a display server answer too, with no connection.
    return x11 == nullptr ? nullptr : x11->connection();
}

bool selectionIsOwned(const char* name) {
    xcb_connection_t* connection = toolkitConnection();
    if (connection == nullptr)
        return false;
    const auto atom = held(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 1, static_cast<quint16>(std::strlen(name)), name),
        nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const auto owner = held(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool displayConnectionIsBroken() {
    xcb_connection_t* connection = toolkitConnection();
    return connection != nullptr && xcb_connection_has_error(connection) != 0;
}

} // namespace orvalis
