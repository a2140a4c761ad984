// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/display.h"

#include "driver/waiting.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace orvalis::driver {

namespace {

/// The server's answers come from malloc.
template <class Answer>
std::unique_ptr<Answer, decltype(&std::free)> owned(Answer* answer) {
    return {answer, &std::free};
}

} // namespace

Display::~Display() {
    if (m_connection)
        xcb_disconnect(m_connection);
}

bool Display::open(const QString& name) {
    m_connection = xcb_connect(name.toLocal8Bit().constData(), nullptr);
    if (xcb_connection_has_error(m_connection) != 0)
        return false;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    return true;
}

quint32 Display::atom(const char* name) const {
    const auto length = static_cast<uint16_t>(std::strlen(name));
    const auto answer = owned(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, length, name), nullptr));
    return answer ? answer->atom : 0;
}

bool Display::hasWindowManager() const {
    const auto answer = owned(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, m_root, atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW,
                         0, 1),
        nullptr));
    return answer && xcb_get_property_value_length(answer.get()) > 0;
}

bool Display::showsWindows(int milliseconds) const {
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(m_connection, window);
    const bool seen = waitUntil([&] { return originOf(window).has_value(); }, milliseconds);
    xcb_destroy_window(m_connection, window);
    xcb_flush(m_connection);
    return seen;
}

bool Display::hasTray() const {
    const auto answer = owned(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, atom("_NET_SYSTEM_TRAY_S0")), nullptr));
    return answer && answer->owner != XCB_NONE;
}

std::optional<QPoint> Display::originOf(quint32 window) const {
    const auto attributes = owned(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
        return std::nullopt;
    const auto place = owned(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, window, m_root, 0, 0), nullptr));
    if (!place)
        return std::nullopt;
    return QPoint(place->dst_x, place->dst_y);
}

bool Display::showsAt(QPoint place) const {
    const auto answer = owned(xcb_translate_coordinates_reply(
        m_connection,
        xcb_translate_coordinates(m_connection, m_root, m_root, static_cast<qint16>(place.x()),
                                  static_cast<qint16>(place.y())),
        nullptr));
    return answer && answer->child != XCB_WINDOW_NONE;
}

bool Display::askToClose(quint32 window) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("_NET_CLOSE_WINDOW");
    constexpr quint32 AskedByTheUser = 2;
    message.data.data32[1] = AskedByTheUser;
    xcb_send_event(m_connection, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    return xcb_flush(m_connection) > 0;
}

} // namespace orvalis::driver
