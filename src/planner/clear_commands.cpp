// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/message_boxes.h"
#include "controls/mouse_numbers.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "planner/grid_file.h"
#include "planner/planner_text.h"
#include "planner/reminder_panel.h"
#include "runtime/app.h"
#include "widgets/gg_command.h"

namespace orvalis {

using namespace Qt::StringLiterals;
using planner::Black;

namespace {

constexpr QChar DecimalSign = u'.';

void removeItem(GridModel& grid, int header) {
    grid.RemoveItem(header);
    grid.RemoveItem(header);
}

void emptyGrid(GridModel& grid) {
    grid.Clear();
    grid.setRows(1);
}

} // namespace

void frmnotes1::connectClearMenu() {
    connect(
        ui.imgDel, &Image::MouseDown, this,
        [this](int button) {
            if (button == LeftButton)
                showClearMenu();
        });
    connect(ui.rt1a, &RichTextBox::MouseDown, this, [this](Qt::MouseButton button) {
        if (button == Qt::RightButton)
            showClearMenu();
    });
    connect(ui.rt1a, &RichTextBox::menuAskedByKey, this, &frmnotes1::showClearMenu);
    for (MSFlexGrid* grid : {ui.MS1, ui.MS3}) {
        grid->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(grid, &QWidget::customContextMenuRequested, this, [this, grid](QPoint place) {
            showClearMenu(grid->viewport()->mapToGlobal(place));
        });
    }
}

void frmnotes1::showClearMenu(std::optional<QPoint> place) {
    HoverReset();
    program().windows.get<PopupMenus>().PopupMenu(u"mnibrisi"_s, place);
}

bool frmnotes1::isSelected(std::size_t subPanel, const QString& otherwise) {
    if (ui.cmdmenu.at(subPanel)->ForeColor() != Black)
        return true;
    program().boxes().MsgBox(otherwise, MsgFlags::InformationIcon);
    return false;
}

bool frmnotes1::isToDoSelected() {
    return isSelected(2, u"Select To-Do panel first."_s);
}

bool frmnotes1::isPrioritySelected() {
    return isSelected(1, u"Select Priority panel first."_s);
}

bool frmnotes1::isReminderSelected() {
    return isSelected(0, u"Select Reminder panel first."_s);
}

bool frmnotes1::isHeader(int row, const QString& otherwise) {
    if (IsOddRow(row, DecimalSign))
        return true;
    program().boxes().MsgBox(otherwise, MsgFlags::InformationIcon);
    return false;
}

void frmnotes1::mnusamo() {
    if (!isToDoSelected())
        return;
    if (ui.rt1a->SelText().isEmpty()) {
        program().boxes().MsgBox(u"Select text you want to clear."_s, MsgFlags::InformationIcon);
        return;
    }
    ui.rt1a->SetSelText({});
    imstodo_Click();
}

void frmnotes1::mnusve() {
    if (!isToDoSelected())
        return;
    constexpr int Flags =
        MsgFlags::YesNo + MsgFlags::ExclamationIcon + MsgFlags::SecondButtonIsDefault;
    if (program().boxes().MsgBox(u"Clear all?"_s, Flags) != Answer::Yes)
        return;
    ui.rt1a->SetText({});
    ui.rt1a->SetSelBold(false);
    ui.rt1a->SetSelColor(Black);
    imstodo_Click();
}

void frmnotes1::mnuclpr1() {
    if (!isPrioritySelected())
        return;
    const int row = ui.MS1->Row();
    if (!isHeader(row, u"Select the first cell (red colored) to delete entire priority."_s))
        return;
    removeItem(ui.MS1->grid(), row);
    sv1();
}

void frmnotes1::mnuclpr2() {
    if (!isPrioritySelected())
        return;
    if (program().boxes().MsgBox(u"Clear All Priorities?"_s,
                                 MsgFlags::YesNo + MsgFlags::ExclamationIcon,
                                 u"Clear"_s) == Answer::No)
        return;
    emptyGrid(ui.MS1->grid());
    sv1();
}

void frmnotes1::mnuclr1() {
    if (!isReminderSelected())
        return;
    const int row = ui.MS3->Row();
    // The words of the Priority list stand here too.
    if (!isHeader(row, u"Select the first cell (with Date and Time) to delete entire priority."_s))
        return;
    removeItem(ui.MS3->grid(), row);
    // The hidden copy loses the item at its own current row, which the tick leaves where it looked
    // last: what is chosen here and what goes from the file need not be the same item.
    GridModel& hidden = hiddenReminders();
    removeItem(hidden, hidden.Row());
    sv3();
}

void frmnotes1::mnuclr2() {
    if (!isReminderSelected())
        return;
    if (program().boxes().MsgBox(u"Clear All Reminders?"_s,
                                 MsgFlags::YesNo + MsgFlags::ExclamationIcon,
                                 u"Clear"_s) == Answer::No)
        return;
    emptyGrid(hiddenReminders());
    emptyGrid(ui.MS3->grid());
    sv3();
}

} // namespace orvalis
