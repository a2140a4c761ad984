// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace orvalis::test {

/// A pointer told to one widget event by event, as the window system would: nothing between the
/// events and the widget looks at it again, so that a handler may delete it.
class Pointer {
public:
    explicit Pointer(QWidget& widget)
        : m_widget(&widget) {}

    void enter(const QPointF& point = {5, 5}) {
        QEnterEvent event(point, point, global(point));
        QApplication::sendEvent(m_widget, &event);
    }
    void leave() {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(m_widget, &event);
    }
    void move(const QPointF& point, Qt::MouseButtons held = {}, Qt::KeyboardModifiers keys = {}) {
        send(QEvent::MouseMove, point, Qt::NoButton, held, keys);
    }
    void press(const QPointF& point = {5, 5}, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
        send(QEvent::MouseButtonPress, point, button, button, keys);
    }
    void doubleClick(const QPointF& point = {5, 5}, Qt::MouseButton button = Qt::LeftButton) {
        send(QEvent::MouseButtonDblClick, point, button, button, {});
    }
    void release(const QPointF& point = {5, 5}, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers keys = {}) {
        send(QEvent::MouseButtonRelease, point, button, {}, keys);
    }

private:
    QPointF global(const QPointF& point) const { return m_widget->mapToGlobal(point); }

    void send(QEvent::Type type, const QPointF& point, Qt::MouseButton button,
              Qt::MouseButtons held, Qt::KeyboardModifiers keys) {
        QMouseEvent event(type, point, global(point), button, held, keys);
        QApplication::sendEvent(m_widget, &event);
    }

    QWidget* m_widget;
};

} // namespace orvalis::test
