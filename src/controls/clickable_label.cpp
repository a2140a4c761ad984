// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/clickable_label.h"

#include "controls/mouse_numbers.h"

#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

#include <utility>

namespace orvalis {

namespace {

/// The window came or went with the focus in it, or a menu did.
bool comesFromOutside(const QFocusEvent& event) {
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

} // namespace

ClickableLabel::ClickableLabel(QWidget* parent)
    : QLabel(parent) {
    setMouseTracking(true);
}

void ClickableLabel::setTabStop(bool on) {
    setFocusPolicy(on ? Qt::TabFocus : Qt::NoFocus);
}

void ClickableLabel::takeFocusFrom(ClickableLabel& other) {
    if (window()->focusWidget() != &other)
        return;
    const bool marked = other.m_marked;
    setFocus(Qt::OtherFocusReason);
    m_marked = marked;
    update();
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

void ClickableLabel::paintFocusMark() {
    if (!hasFocus() || !m_marked)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ClickableLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    paintFocusMark();
}

void ClickableLabel::keyPressEvent(QKeyEvent* event) {
    const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
    const bool alone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!m_marked || !presses || !alone) {
        QLabel::keyPressEvent(event);
        return;
    }
    event->accept();
    // A key held down is one press.
    if (!event->isAutoRepeat())
        press();
}

bool ClickableLabel::focusNextPrevChild(bool next) {
    if (m_marked || !isVisible())
        return QLabel::focusNextPrevChild(next);
    setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    m_marked = true;
    update();
    return true;
}

void ClickableLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    if (!comesFromOutside(*event))
        m_marked = true;
    update();
}

void ClickableLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    if (!comesFromOutside(*event))
        m_marked = false;
    update();
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
