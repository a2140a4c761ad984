// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <memory>

struct xcb_connection_t;

namespace orvalis {

/// The program that owns the X11 clipboard, asked through a connection of its own whether it is at
/// work. On other platforms it always is.
class X11ClipboardOwner {
public:
    X11ClipboardOwner();
    ~X11ClipboardOwner();
    X11ClipboardOwner(const X11ClipboardOwner&) = delete;
    X11ClipboardOwner& operator=(const X11ClipboardOwner&) = delete;

    /// Whether the owner tells what it offers within a tenth of a second, or there is none. One
    /// that did not is believed to be stopped for some seconds and not asked meanwhile.
    bool answers();

private:
    bool open();
    bool tells();

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    quint32 m_window = 0;
    quint32 m_clipboard = 0;
    quint32 m_targets = 0;
    quint32 m_silentOwner = 0;
    QElapsedTimer m_silentSince;
};

} // namespace orvalis
