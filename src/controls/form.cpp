// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/form.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace orvalis {

namespace {

/// Where the user has been. A message box, a dialog or another program's window is no form, so the
/// return from one finds the same form present and is no activation.
struct Trail {
    /// The form that was activated last, also when it has been hidden since.
    QPointer<Form> present;
    /// The forms on the screen in the order in which the user came to them, the latest last.
    QList<QPointer<Form>> shown;
};

Trail& trail() {
    static Trail forms;
    return forms;
}

} // namespace

Form::Form(const QString& name, Qt::WindowFlags flags)
    : QWidget(nullptr, flags) {
    setObjectName(name);
}

Form::~Form() {
    trail().shown.removeAll(QPointer<Form>(this));
}

void Form::load() {
    if (m_life != Life::New)
        return;
    m_life = Life::Loaded;
    onLoad();
}

void Form::unload() {
    if (m_life != Life::Loaded)
        return;
    // First of all, so that an unload handler that asks for its own unload changes nothing.
    m_life = Life::Unloaded;
    onQueryUnload();
    onUnload();
    const auto timers = findChildren<QTimer*>();
    for (QTimer* timer : timers)
        timer->stop();
    hide();
}

void Form::Show() {
    if (m_life == Life::Unloaded)
        return;
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (!isVisible()) {
        moveOntoScreen();
        show();
    }
    raise();
    activateWindow();
}

void Form::ShowOver(Form& owner) {
    // Both get their native windows now, if they have none yet.
    winId();
    owner.winId();
    windowHandle()->setTransientParent(owner.windowHandle());
    Show();
}

void Form::showWithoutFocus() {
    if (m_life == Life::Unloaded)
        return;
    if (!isVisible()) {
        const QScopedValueRollback quiet(m_quietShow, true);
        setAttribute(Qt::WA_ShowWithoutActivating, true);
        moveOntoScreen();
        show();
    }
    raise();
}

void Form::Hide() {
    hide();
}

void Form::takePlaceOf(const Form& other) {
    // Half the difference, and not the centres of the two rectangles: their rounding would let a
    // window creep by a pixel with each switch to and fro.
    const QSize difference = other.size() - size();
    move(other.pos() + QPoint(difference.width() / 2, difference.height() / 2));
    m_placed = true;
}

void Form::standAt(const QPoint& corner) {
    move(corner);
    m_placed = true;
}

Form* Form::lastActive() {
    const auto& shown = trail().shown;
    return shown.isEmpty() ? nullptr : shown.last().data();
}

bool Form::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && m_life == Life::Loaded && isVisible() &&
        trail().present != this)
        becomeActive();
    return QWidget::event(event);
}

void Form::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // A window that comes back from being minimised by the desktop was not shown by the program.
    if (!event->spontaneous() && !m_quietShow && m_life == Life::Loaded)
        becomeActive();
}

void Form::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    const bool wasLast = lastActive() == this;
    trail().shown.removeAll(QPointer<Form>(this));
    // The user is handed to the window that he was in before; the desktop might choose any other.
    if (wasLast && lastActive() != nullptr)
        lastActive()->activateWindow();
}

void Form::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (m_life == Life::Loaded)
        onCloseRequested();
}

void Form::becomeActive() {
    trail().present = this;
    trail().shown.removeAll(QPointer<Form>(this));
    trail().shown.append(QPointer<Form>(this));
    onActivate();
}

void Form::moveOntoScreen() {
    if (testAttribute(Qt::WA_DontShowOnScreen))
        return;
    const QSize extent = frameGeometry().size();
    const QScreen* screen = m_placed ? QGuiApplication::screenAt(QRect(pos(), extent).center())
                                     : QGuiApplication::primaryScreen();
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    QPoint place = pos();
    if (!m_placed)
        place = room.topLeft() + m_offMiddle +
                QPoint((room.width() - extent.width()) / 2, (room.height() - extent.height()) / 2);
    // The upper left corner wins where the window is larger than the screen.
    place.setX(std::max(room.left(), std::min(place.x(), room.right() + 1 - extent.width())));
    place.setY(std::max(room.top(), std::min(place.y(), room.bottom() + 1 - extent.height())));
    move(place);
    m_placed = true;
}

} // namespace orvalis
