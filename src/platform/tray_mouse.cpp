// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_mouse.h"

#include "platform/tray_icon.h"

#include <QMouseEvent>
#include <QWidget>

namespace orvalis {

TrayMouseCodes::TrayMouseCodes(QObject* parent)
    : QObject(parent) {}

void TrayMouseCodes::watch(QWidget* widget) {
    m_widget = widget;
    m_passedOver = false;
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

void TrayMouseCodes::press(int code) {
    if (!m_passedOver) {
        m_passedOver = true;
        emit mouse(TrayMouse::Move);
    }
    emit mouse(code);
}

bool TrayMouseCodes::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_widget)
        return false;
    const auto button = [event] { return static_cast<QMouseEvent*>(event)->button(); };
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
        m_passedOver = true;
        emit mouse(TrayMouse::Move);
        break;
    case QEvent::Leave:
        m_passedOver = false;
        break;
    case QEvent::MouseButtonPress:
        if (button() == Qt::LeftButton)
            press(TrayMouse::LeftDown);
        else if (button() == Qt::RightButton)
            press(TrayMouse::RightDown);
        break;
    case QEvent::MouseButtonRelease:
        if (button() == Qt::LeftButton)
            emit mouse(TrayMouse::LeftUp);
        else if (button() == Qt::RightButton)
            emit mouse(TrayMouse::RightUp);
        break;
    case QEvent::MouseButtonDblClick:
        if (button() == Qt::LeftButton)
            press(TrayMouse::LeftDoubleClick);
        else if (button() == Qt::RightButton)
            press(TrayMouse::RightDoubleClick);
        break;
    default:
        break;
    }
    return false;
}

} // namespace orvalis
