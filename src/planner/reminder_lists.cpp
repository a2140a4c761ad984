// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_panel.h"

#include "controls/message_boxes.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/button_look.h"
#include "core/program.h"
#include "planner/grid_file.h"
#include "runtime/app.h"
#include "widgets/gg_command.h"

#include <QFrame>

namespace orvalis {

using namespace Qt::StringLiterals;

void frmnotes1::connectLists() {
    for (std::size_t index = 0; index < ui.cmdmenu.size(); ++index)
        connect(
            ui.cmdmenu.at(index), &GGCommand::Click, this,
            [this, index] { selectSubPanel(index); });
    connect(ui.MS1, &MSFlexGrid::KeyPress, this, [this](const QString& key) {
        endSilently([&] { typeIntoGrid(ui.MS1->grid(), key); });
    });
    connect(ui.MS3, &MSFlexGrid::KeyPress, this, &frmnotes1::MS3_KeyPress);
    connect(ui.imgsoo, &GGCommand::Click, this, &frmnotes1::sv1);
    connect(ui.imgso, &GGCommand::Click, this, &frmnotes1::imgso_Click);
    connect(ui.imstodo, &GGCommand::Click, this, &frmnotes1::imstodo_Click);
}

void frmnotes1::selectSubPanel(std::size_t index) {
    for (GGCommand* tab : ui.cmdmenu)
        wearLook(*tab, skin::MenuTab);
    wearLook(*ui.cmdmenu.at(index), skin::MenuTabSelected);
    // The one in front is the only one to be reached: what lies under it is hidden from keyboard
    // and screen readers as it is from the eye.
    ui.OwnerFrame.at(index)->setVisible(true);
    ui.OwnerFrame.at(index)->raise();
    for (QFrame* frame : ui.OwnerFrame)
        frame->setVisible(frame == ui.OwnerFrame.at(index));
}

void frmnotes1::MS3_KeyPress(const QString& key) {
    if (ui.MS3->CellBackColor() == RemindColours.headerBack) {
        program().boxes().MsgBox(u"Can't edit this field."_s, MsgFlags::StopIcon, u"Remind List"_s);
        return;
    }
    endSilently([&] { typeIntoGrid(ui.MS3->grid(), key); });
}

void frmnotes1::sv1() {
    MatSave1(ui.MS1->grid());
}

void frmnotes1::sv3() {
    // Of the panel's list and the hidden one, which is written behind it, the second alone is put
    // in place: a run that is killed in between leaves no list that was not to stay.
    SaveTmp2(hiddenReminders());
}

void frmnotes1::imgso_Click() {
    SaveTmp2(ui.MS3->grid());
    LoadTmp2(hiddenReminders());
}

void frmnotes1::imstodo_Click() {
    endSilently([this] { ui.rt1a->files().SaveFile(program().services.app.file(u"Vazno.rtf"_s)); });
}

QString frmnotes1::gridPath(const QString& name) {
    // The dialog is never shown: it only carries the path.
    CommonDialog1.FileName.clear();
    CommonDialog1.Filter = u"Orvalis (*.brf)|*.brf"_s;
    CommonDialog1.FileName = program().services.app.file(name);
    return CommonDialog1.FileName;
}

void frmnotes1::MatSave1(const GridModel& grid) {
    SaveGridFile(gridPath(u"tmp1.brf"_s), grid);
}

void frmnotes1::SaveTmp2(const GridModel& grid) {
    SaveGridFile(gridPath(u"tmp2.brf"_s), grid);
}

void frmnotes1::LoadTmp1(GridModel& grid) {
    LoadPriorityGrid(gridPath(u"tmp1.brf"_s), grid);
}

void frmnotes1::LoadTmp2(GridModel& grid) {
    LoadRemindGrid(gridPath(u"tmp2.brf"_s), grid);
}

GridModel& frmnotes1::hiddenReminders() const {
    return program().windows.get<StartWindow>().MS2().grid();
}

} // namespace orvalis
