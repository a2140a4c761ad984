// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_panel.h"

#include "controls/image.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QShortcut>

namespace orvalis {

using namespace Qt::StringLiterals;

void frmnotes1::connectFind() {
    connect(ui.imgFind, &Image::Click, this, &frmnotes1::imgFind_Click);
    connect(ui.imgBack, &GGCommand::Click, this, &frmnotes1::imgBack_Click);
    connect(ui.FindButton, &GGCommand::Click, this, &frmnotes1::FindButton_Click);
    connect(ui.FindNextButton, &GGCommand::Click, this, &frmnotes1::FindNextButton_Click);
    connect(ui.Text1, &QLineEdit::returnPressed, this, &frmnotes1::FindButton_Click);
    connect(new QShortcut(Qt::Key_F3, ui.Text1, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &frmnotes1::FindNextButton_Click);
    connect(new QShortcut(Qt::Key_F3, ui.rt1a, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, [this] {
                if (!ui.Text1->text().isEmpty())
                    FindNextButton_Click();
            });
}

void frmnotes1::imgFind_Click() {
    showEntryFrame(EntryFrame::Find);
    ui.Text1->clear();
    ui.Text1->setFocus();
    selectSubPanel(2);
}

void frmnotes1::imgBack_Click() {
    // Also where the search began in the reminder's frame, and a save that was disabled there stays
    // so: the way back to that frame is its own tick.
    showEntryFrame(EntryFrame::Message);
    ui.rt1->setFocus();
}

void frmnotes1::FindButton_Click() {
    FindPosition.restart();
    find(0);
}

void frmnotes1::FindNextButton_Click() {
    find(1);
}

void frmnotes1::find(int leastFound) {
    // No policy: a match beyond the 16-bit positions ends the program.
    const int found = ui.rt1a->Find(ui.Text1->text(), FindPosition.start(), -1,
                                    findOptions(ui.Check2->isChecked(), ui.Check1->isChecked()));
    FindPosition.store(found);
    if (found < leastFound)
        program().boxes().MsgBox(u"String not found."_s);
    else
        ui.rt1a->setFocus();
}

} // namespace orvalis
