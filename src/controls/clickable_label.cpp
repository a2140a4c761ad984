// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/clickable_label.h"

#include "controls/mouse_numbers.h"

#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

namespace orvalis {

ClickableLabel::ClickableLabel(QWidget* parent)
    : QLabel(parent) {
    setMouseTracking(true);
}

void ClickableLabel::press() {
    if (!isEnabled())
        return;
    const QPointer<ClickableLabel> self(this);
    const QPointF middle = QRectF(rect()).center();
    const auto x = static_cast<float>(middle.x());
    const auto y = static_cast<float>(middle.y());
    emit MouseDown(1, 0, x, y);
    if (self)
        emit Click();
    if (self)
        emit MouseUp(1, 0, x, y);
}

bool ClickableLabel::isPressable() const {
    return isSignalConnected(QMetaMethod::fromSignal(&ClickableLabel::Click)) ||
           isSignalConnected(QMetaMethod::fromSignal(&ClickableLabel::MouseDown));
}

void ClickableLabel::enterEvent(QEnterEvent* event) {
    QLabel::enterEvent(event);
    emit MouseEnter();
}

void ClickableLabel::leaveEvent(QEvent* event) {
    QLabel::leaveEvent(event);
    emit MouseExit();
}

void ClickableLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton)
        m_leftHeld = true;
    emit MouseDown(buttonNumber(event->button()), shiftNumber(event->modifiers()),
                   static_cast<float>(event->position().x()),
                   static_cast<float>(event->position().y()));
}

void ClickableLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointer<ClickableLabel> self(this);
    mousePressEvent(event);
    if (self)
        emit DblClick();
}

void ClickableLabel::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    emit MouseMove(buttonNumbers(event->buttons()), shiftNumber(event->modifiers()),
                   static_cast<float>(event->position().x()),
                   static_cast<float>(event->position().y()));
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const int button = buttonNumber(event->button());
    const int shift = shiftNumber(event->modifiers());
    const QPointF point = event->position();
    const QPointer<ClickableLabel> self(this);
    if (event->button() == Qt::LeftButton && std::exchange(m_leftHeld, false) &&
        rect().contains(point.toPoint()))
        emit Click();
    if (self)
        emit MouseUp(button, shift, static_cast<float>(point.x()), static_cast<float>(point.y()));
}

} // namespace orvalis
