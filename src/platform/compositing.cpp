// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/compositing.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>

#if QT_CONFIG(xcb)
#include <xcb/xcb.h>
#endif

namespace orvalis {

#if QT_CONFIG(xcb)

namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A compositing manager owns the selection of this name for as long as it runs.
constexpr char ManagerSelection[] = "_NET_WM_CM_S0";

} // namespace

bool desktopComposites() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr)
        return true;
    xcb_connection_t* connection = x11->connection();
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, sizeof(ManagerSelection) - 1, ManagerSelection),
        nullptr));
    if (!atom)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, FreeReply> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom),
                                      nullptr));
    return owner && owner->owner != XCB_NONE;
}

#else

bool desktopComposites() {
    return true;
}

#endif

} // namespace orvalis
