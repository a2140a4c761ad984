// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>

#include <optional>

struct xcb_connection_t;

namespace orvalis::driver {

/// What the X server itself knows of a desktop. A program's own view runs behind it while windows
/// are mapped and placed, and a press goes by the server's.
class Display {
public:
    Display() = default;
    ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// \param name as in the variable DISPLAY. \returns whether the server took the connection.
    bool open(const QString& name);

    bool hasWindowManager() const;
    /// Brings up a small window, as a program does, and takes it away again. \returns whether it
    /// could be seen within the time given.
    bool showsWindows(int milliseconds) const;
    /// Whether a tray of icons is ready to take one.
    bool hasTray() const;
    /// Where a window's area begins, in device pixels of the whole desktop; nothing while it cannot
    /// be seen. \param window the server's number of it.
    std::optional<QPoint> originOf(quint32 window) const;

    /// Whether a window can be seen at a place of the desktop.
    bool showsAt(QPoint place) const;

    /// Has the window manager ask a window's program to close it. \returns whether it was told.
    bool askToClose(quint32 window) const;

private:
    quint32 atom(const char* name) const;

    xcb_connection_t* m_connection = nullptr;
    quint32 m_root = 0;
};

} // namespace orvalis::driver
