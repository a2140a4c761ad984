// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/mouse_numbers.h"
#include "widgets/gg_command.h"
#include "widgets/tool_tip_window.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPointer>

namespace orvalis {

// A handler of any event may delete the button, or open a box that takes the pointer away. So
// nothing of the button is touched behind an emit before both have been looked at.

namespace {

float number(qreal coordinate) {
    return static_cast<float>(coordinate);
}

/// A box, a menu or another program that comes and goes leaves the focus where it is in its form.
bool comesFromOutside(const QFocusEvent& event) {
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

} // namespace

QPointF GGCommand::facePoint(const QPointF& point) const {
    return point - QPointF(frameWidth(), frameWidth());
}

bool GGCommand::isOver(const QPointF& facePoint) const {
    const bool inside = facePoint.x() >= 0 && facePoint.y() >= 0 && facePoint.x() < ScaleWidth() &&
                        facePoint.y() < ScaleHeight();
    if (!inside || !isVisible())
        return inside;
    const QPoint point = (facePoint + QPointF(frameWidth(), frameWidth())).toPoint();
    const QWidget* under = window()->childAt(mapTo(window(), point));
    return under == nullptr ? isWindow() : under == this || isAncestorOf(under);
}

void GGCommand::beginHover() {
    if (!ToolTip().isEmpty())
        createToolTip();
    const QPointer<GGCommand> self(this);
    emit MouseEnter();
    if (!self)
        return;
    m_Hover = true;
    if (!m_pointerInside) {
        endHover();
        return;
    }
    if (m_useHoverProperties) {
        CalcLayout(true);
        PaintFace(m_Offset, false, true);
    }
    PaintBorder(1);
}

void GGCommand::endHover() {
    m_Hover = false;
    const QPointer<GGCommand> self(this);
    emit MouseExit();
    if (!self)
        return;
    endToolTip();
    m_Pressed = false;
    CalcLayout(false);
    PaintFace(0, false, false);
    PaintBorder(0);
}

void GGCommand::pointerLeft() {
    m_pointerInside = false;
    if (m_Hover)
        endHover();
}

void GGCommand::handleMouseMove(int Button, int Shift, const QPointF& point,
                                const QPointF& facePoint) {
    const bool over = isOver(facePoint);
    const QPointer<GGCommand> self(this);
    if (!over && !m_dontReleaseCapture) {
        if (!m_Hover) {
            // The toolkit goes on telling of a pointer that left with a button held.
            return;
        }
        pointerLeft();
    } else if (over) {
        m_pointerInside = true;
        if (!m_Hover)
            beginHover();
    }
    if (!self)
        return;
    if (m_ToolTipWnd)
        m_ToolTipWnd->pointerMoved();
    emit MouseMove(Button, Shift, number(point.x()), number(point.y()));
}

void GGCommand::handleMouseDown(int Button, int Shift, const QPointF& point) {
    m_pointerInside = true;
    m_MouseDown = true;
    m_Pressed = true;
    if (m_ToolTipWnd)
        m_ToolTipWnd->dismiss();
    const QPointer<GGCommand> self(this);
    emit MouseDown(Button, Shift, number(point.x()), number(point.y()));
    if (!self)
        return;
    if (!m_pointerInside) {
        m_MouseDown = false;
        m_Pressed = false;
        return;
    }
    if (Button == 1) {
        CalcLayout(m_useHoverProperties);
        PaintFace(1, m_useGradientFill && m_gradientInverseOnPress, m_useHoverProperties);
        CalcLayout(false);
        PaintBorder(2);
    }
    m_Hover = true;
}

void GGCommand::handleMouseUp(int Button, int Shift, const QPointF& point) {
    m_MouseDown = false;
    if (!m_Hover) {
        // The pointer left with the button held, and with it went the right to the release.
        return;
    }
    const QPointer<GGCommand> self(this);
    if (Button == 1 && m_Pressed) {
        emit Click();
        if (!self)
            return;
    }
    m_Pressed = false;
    emit MouseUp(Button, Shift, number(point.x()), number(point.y()));
    if (!self || !m_pointerInside)
        return;
    if (Button == 1) {
        CalcLayout(m_useHoverProperties);
        PaintFace(0, false, m_useHoverProperties);
        CalcLayout(false);
        PaintBorder(1);
    }
    m_Hover = true;
}

void GGCommand::press() {
    if (!isEnabled())
        return;
    const bool wasInside = m_pointerInside;
    const QPointF middle(ScaleWidth() / 2.0, ScaleHeight() / 2.0);
    const QPointer<GGCommand> self(this);
    handleMouseDown(1, 0, middle);
    if (self)
        handleMouseUp(1, 0, middle);
    if (self && !wasInside)
        pointerLeft();
}

void GGCommand::enterEvent(QEnterEvent*) {
    if (!isEnabled())
        return;
    m_pointerInside = true;
    if (!m_Hover)
        beginHover();
}

void GGCommand::leaveEvent(QEvent*) {
    if (!m_dontReleaseCapture)
        pointerLeft();
}

void GGCommand::hideEvent(QHideEvent*) {
    m_MouseDown = false;
    pointerLeft();
}

void GGCommand::mousePressEvent(QMouseEvent* event) {
    event->accept();
    handleMouseDown(buttonNumber(event->button()), shiftNumber(event->modifiers()),
                    facePoint(event->position()));
}

void GGCommand::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointer<GGCommand> self(this);
    mousePressEvent(event);
    if (self)
        emit DblClick();
}

void GGCommand::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const QPointF point = facePoint(event->position());
    handleMouseMove(buttonNumbers(event->buttons()), shiftNumber(event->modifiers()), point, point);
}

void GGCommand::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    handleMouseUp(buttonNumber(event->button()), shiftNumber(event->modifiers()),
                  facePoint(event->position()));
}

bool GGCommand::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_imgPicture)
        return QWidget::eventFilter(watched, event);
    // The picture behaves like the face; a point on it is told from its own corner.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        break;
    default:
        return false;
    }
    auto* mouse = static_cast<QMouseEvent*>(event);
    mouse->accept();
    const int button = buttonNumber(mouse->button());
    const int shift = shiftNumber(mouse->modifiers());
    const QPointF point = mouse->position();
    const QPointer<GGCommand> self(this);
    switch (event->type()) {
    case QEvent::MouseMove:
        handleMouseMove(buttonNumbers(mouse->buttons()), shift, point,
                        facePoint(point + m_imgPicture->pos()));
        break;
    case QEvent::MouseButtonRelease:
        handleMouseUp(button, shift, point);
        break;
    default:
        handleMouseDown(button, shift, point);
        if (self && event->type() == QEvent::MouseButtonDblClick)
            emit DblClick();
        break;
    }
    return true;
}

void GGCommand::focusInEvent(QFocusEvent* event) {
    if (comesFromOutside(*event))
        return;
    if (m_MouseDown) {
        m_MouseDown = false;
        return;
    }
    // Twice, as a focus that comes by itself draws the edge both on its way in and once inside.
    PaintBorder(1);
    PaintBorder(1);
}

void GGCommand::focusOutEvent(QFocusEvent* event) {
    if (comesFromOutside(*event))
        return;
    CalcLayout(false);
    PaintFace(0, false, false);
}

bool GGCommand::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ToolTip:
        // The button has a tool tip window of its own, and shows none of its container's.
        event->accept();
        return true;
    case QEvent::ToolTipChange:
        nameForAssistivePrograms();
        if (m_ToolTipWnd)
            m_ToolTipWnd->updateText(toolTip());
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

/// The tip is a child of the window, as the button is. A window that goes tells its children one by
/// one, and none of them may vanish from under its hands.
void GGCommand::endToolTip() {
    if (m_ToolTipWnd) {
        m_ToolTipWnd->dismiss();
        m_ToolTipWnd->deleteLater();
        m_ToolTipWnd = nullptr;
    }
}

void GGCommand::createToolTip() {
    endToolTip();
    ToolTipWindow::Content content;
    content.text = ToolTip();
    content.title = m_toolTipTitle;
    content.icon = m_toolTipIcon;
    content.balloon = m_toolTipStyle == 1;
    content.centered = m_toolTipCentered;
    content.backColor = m_toolTipBackColor;
    content.foreColor = m_toolTipForeColor;
    m_ToolTipWnd = new ToolTipWindow(*this, content);
}

ToolTipWindow* GGCommand::toolTipWindow() const {
    return m_ToolTipWnd;
}

void GGCommand::setDontReleaseCapture(bool dont) {
    m_dontReleaseCapture = dont;
    if (!dont && m_Hover && !underMouse())
        pointerLeft();
}

void GGCommand::setValue(bool value) {
    if (value)
        emit Click();
}

} // namespace orvalis
