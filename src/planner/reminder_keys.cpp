// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_panel.h"

#include "controls/image.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/window_keys.h"
#include "widgets/gg_command.h"

#include <QFrame>
#include <QGroupBox>
#include <QKeyEvent>

#include <algorithm>

namespace orvalis {

namespace {

constexpr std::size_t RemindPanel = 0;
constexpr std::size_t WeeklyPanel = 3;

void pressWhereShown(GGCommand& button) {
    if (button.isVisible())
        button.press();
}

} // namespace

void frmnotes1::connectKeys() {
    for (std::size_t index = RemindPanel; index <= WeeklyPanel; ++index)
        onKey(*this, Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(index)),
              [this, index] { showSubPanelByKey(index); });
    // Both pages have something to save, to set the font of and to begin anew: a key means the page
    // that is worked on.
    onKey(
        *this, QKeySequence::Save,
        [this] {
            if (onRightPage())
                for (GGCommand* save : {ui.imgso, ui.imgsoo, ui.imstodo, ui.imgoe})
                    pressWhereShown(*save);
            else
                ui.imgSave->press();
        });
    onKey(
        *this, Qt::CTRL | Qt::Key_D,
        [this] { pressWhereShown(onRightPage() ? *ui.Button6 : *ui.Command2); });
    onKey(
        *this, QKeySequence::New,
        [this] {
            if (onRightPage())
                pressWhereShown(*ui.Button4);
            else
                ui.imgNew->press();
        });
    onKey(*this, QKeySequence::Find, [this] { ui.imgFind->press(); });
    pressOnKey(*this, QKeySequence::Open, *ui.imgOpen);
    pressOnKey(*this, Qt::CTRL | Qt::SHIFT | Qt::Key_S, *ui.Button5);
    // In the event message Enter begins a line.
    pressOnKey(*this, Qt::CTRL | Qt::Key_Return, *ui.Button1);
}

bool frmnotes1::onRightPage() const {
    const QWidget* focused = focusWidget();
    return std::any_of(ui.OwnerFrame.begin(), ui.OwnerFrame.end(),
                       [&](const QFrame* frame) { return frame->isAncestorOf(focused); });
}

void frmnotes1::showSubPanelByKey(std::size_t index) {
    const std::array<QWidget*, 4> contents{ui.MS3, ui.MS1, ui.rt1a, ui.rt2};
    ui.cmdmenu.at(index)->press();
    contents.at(index)->setFocus(Qt::ShortcutFocusReason);
}

void frmnotes1::keyPressEvent(QKeyEvent* event) {
    const QWidget* focused = focusWidget();
    const bool inReminder = ui.Frame3->isVisible() && ui.Frame3->isAncestorOf(focused);
    const bool inFind =
        ui.Frame1->isVisible() && (ui.Frame1->isAncestorOf(focused) || focused == ui.rt1a);
    const bool leaves = event->key() == Qt::Key_Escape;
    if (inReminder && isEnter(*event))
        ui.Button1->press();
    else if (inReminder && leaves)
        ui.Button2->press();
    else if (inFind && leaves)
        ui.imgBack->press();
    else
        ChromePanel::keyPressEvent(event);
}

} // namespace orvalis
