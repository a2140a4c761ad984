// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/x11/x11_screen.h"

#include "platform/x11/x11_reply.h"
#include "platform/x11/xsettings.h"

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <memory>
#include <utility>

namespace orvalis {

namespace {

constexpr double PlainResolution = 96;          // dots to the inch at which nothing is scaled
constexpr quint32 LongestProperty = 256 * 1024; // in units of four bytes

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

xcb_screen_t* screenOf(xcb_connection_t* connection, int number) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0; xcb_screen_next(&screens), --number)
        if (number == 0)
            return screens.data;
    return nullptr;
}

xcb_intern_atom_cookie_t askAtom(xcb_connection_t* connection, const QByteArray& name) {
    return xcb_intern_atom(connection, 1, static_cast<quint16>(name.size()), name.constData());
}

xcb_get_property_cookie_t askProperty(xcb_connection_t* connection, xcb_window_t window,
                                      xcb_atom_t name) {
    return xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0,
                            LongestProperty);
}

/// The answer to a question that was asked before; empty where the server could not tell.
template <class Reply, class Cookie>
HeldReply<Reply> answer(Reply* (*reply)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                        xcb_connection_t* connection, Cookie cookie) {
    return held(reply(connection, cookie, nullptr));
}

xcb_atom_t atomOf(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const auto reply = answer(xcb_intern_atom_reply, connection, cookie);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

QByteArray bytesOf(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
    const auto reply = answer(xcb_get_property_reply, connection, cookie);
    if (!reply)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

bool hasMonitors(xcb_connection_t* connection) {
    const xcb_query_extension_reply_t* extension =
        xcb_get_extension_data(connection, &xcb_randr_id);
    return extension && extension->present;
}

/// The primary monitor, or the first, or null.
const xcb_randr_monitor_info_t* primaryOf(const xcb_randr_get_monitors_reply_t* reply) {
    const xcb_randr_monitor_info_t* chosen = nullptr;
    if (!reply)
        return chosen;
    for (auto monitors = xcb_randr_get_monitors_monitors_iterator(reply); monitors.rem > 0;
         xcb_randr_monitor_info_next(&monitors))
        if (!chosen || (monitors.data->primary && !chosen->primary))
            chosen = monitors.data;
    return chosen;
}

/// Asks all that is to be known in three rounds, each sent as a whole: a start waits for every
/// round on a busy machine.
DisplayScreen ask(xcb_connection_t* connection, int number, const xcb_screen_t& root) {
    DisplayScreen screen{{}, QSizeF(root.width_in_pixels, root.height_in_pixels), 1};

    xcb_prefetch_extension_data(connection, &xcb_randr_id);
    const auto selectionName = askAtom(connection, "_XSETTINGS_S" + QByteArray::number(number));
    const auto settingsName = askAtom(connection, "_XSETTINGS_SETTINGS");
    const auto resources = askProperty(connection, root.root, XCB_ATOM_RESOURCE_MANAGER);
    const bool monitorsKnown = hasMonitors(connection);

    xcb_randr_get_monitors_cookie_t monitors{};
    if (monitorsKnown)
        monitors = xcb_randr_get_monitors(connection, root.root, 1);
    // A name that nobody made asks for the owner of nothing, which is nobody.
    const auto owner = xcb_get_selection_owner(connection, atomOf(connection, selectionName));
    const xcb_atom_t settings = atomOf(connection, settingsName);
    double resolution =
        resolutionOfResources(bytesOf(connection, resources)).value_or(PlainResolution);
    auto monitorsReply = held<xcb_randr_get_monitors_reply_t>(nullptr);
    if (monitorsKnown)
        monitorsReply = answer(xcb_randr_get_monitors_reply, connection, monitors);
    const auto ownerReply = answer(xcb_get_selection_owner_reply, connection, owner);

    const bool published =
        ownerReply && ownerReply->owner != XCB_WINDOW_NONE && settings != XCB_ATOM_NONE;
    xcb_get_property_cookie_t settingsValue{};
    if (published)
        settingsValue = askProperty(connection, ownerReply->owner, settings);
    if (const xcb_randr_monitor_info_t* monitor = primaryOf(monitorsReply.get())) {
        screen.size = QSizeF(monitor->width, monitor->height);
        const auto name = answer(xcb_get_atom_name_reply, connection,
                                 xcb_get_atom_name(connection, monitor->name));
        if (name)
            screen.name = QByteArray(xcb_get_atom_name_name(name.get()),
                                     xcb_get_atom_name_name_length(name.get()));
    }
    // What the desktop publishes goes before the resource database.
    if (published)
        resolution = resolutionOfSettings(bytesOf(connection, settingsValue)).value_or(resolution);
    screen.factor = resolution / PlainResolution;
    return screen;
}

/// The connection that the screen was asked through, open until releaseX11Screen().
Connection& keptConnection() {
    static Connection connection;
    return connection;
}

} // namespace

std::optional<DisplayScreen> x11Screen() {
    int number = 0;
    Connection connection(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(connection.get()))
        return std::nullopt;
    const xcb_screen_t* root = screenOf(connection.get(), number);
    if (!root)
        return std::nullopt;
    const DisplayScreen screen = ask(connection.get(), number, *root);
    keptConnection() = std::move(connection);
    return screen;
}

void releaseX11Screen() {
    keptConnection().reset();
}

} // namespace orvalis
