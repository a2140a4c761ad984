// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/window_drag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace orvalis {

WindowDrag::WindowDrag(QWidget& window)
    : QObject(&window)
    , m_window(window) {}

void WindowDrag::start(Qt::MouseButton button, const QPoint& globalPosition) {
    QWindow* handle = m_window.windowHandle();
    if (handle == nullptr)
        return;
    // Qt reports that the system moves the window for any button, but systems do so for the left
    // one alone.
    if (button == Qt::LeftButton && handle->startSystemMove())
        return;
    m_button = button;
    m_grip = globalPosition - m_window.pos();
    qApp->installEventFilter(this);
}

bool WindowDrag::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->buttons().testFlag(m_button))
            m_window.move(mouse->globalPosition().toPoint() - m_grip);
        else
            end();
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (static_cast<QMouseEvent*>(event)->button() == m_button)
            end();
    }
    return QObject::eventFilter(watched, event);
}

void WindowDrag::end() {
    m_button = Qt::NoButton;
    qApp->removeEventFilter(this);
}

} // namespace orvalis
