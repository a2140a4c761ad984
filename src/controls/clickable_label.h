// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/pressable.h"

#include <QLabel>

namespace orvalis {

/// What pictures and texts on a form have in common: they tell of the mouse over them, and whoever
/// listens makes a button of them. Mouse events end here: they are not handed on to what lies
/// under the control. A handler of any signal may delete the control.
class ClickableLabel : public QLabel, public Pressable {
    Q_OBJECT
public:
    explicit ClickableLabel(QWidget* parent);

    /// Lets the control be reached with the Tab key, with a mark while it has the focus, and
    /// pressed with Space or Enter, as buttons are. The mouse moves no focus to it. One that
    /// has the focus when its window opens shows its mark, and answers keys, from the first Tab on.
    void setTabStop(bool on);

    /// Takes the focus, and its mark, from a control whose place it takes; nothing where that has
    /// none. Its window need not be the active one.
    void takeFocusFrom(ClickableLabel& other);

    void press() override;
    /// True as soon as somebody listens to MouseDown or Click.
    bool isPressable() const override;

signals:
    /// A button went down, the second press of a double click too. \a Button: 1 left, 2 right, 4
    /// middle; \a Shift: 1 shift, 2 control, 4 alt, added up; the point in logical pixels.
    void MouseDown(int Button, int Shift, float X, float Y);
    /// The pointer moved over the control, with or without buttons held, whose numbers are added.
    void MouseMove(int Button, int Shift, float X, float Y);
    void MouseUp(int Button, int Shift, float X, float Y);
    /// The left button went down and up inside. Comes before MouseUp.
    void Click();
    void DblClick();
    void MouseEnter();
    void MouseExit();

protected:
    /// To be called by a control that paints itself, at the end.
    void paintFocusMark();

    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool m_leftHeld = false;
    bool m_marked = false; ///< it has the focus, and the user knows
};

} // namespace orvalis
