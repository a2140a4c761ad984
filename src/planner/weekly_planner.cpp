// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/message_boxes.h"
#include "controls/month_view.h"
#include "controls/rich_text_box.h"
#include "controls/selection_font.h"
#include "core/program.h"
#include "planner/reminder_panel.h"
#include "runtime/app.h"
#include "runtime/files.h"
#include "widgets/gg_command.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

QString plannerFilter() {
    return u"Planner (*.rtf)|*.rtf"_s;
}

} // namespace

void frmnotes1::connectPlanner() {
    connect(ui.Button4, &GGCommand::Click, this, &frmnotes1::todo1);
    connect(ui.imgOpen, &GGCommand::Click, this, &frmnotes1::todo2);
    connect(ui.imgoe, &GGCommand::Click, this, &frmnotes1::todo3);
    connect(ui.Button5, &GGCommand::Click, this, &frmnotes1::todo4);
    connect(ui.Button6, &GGCommand::Click, this, &frmnotes1::todo5);
}

QString frmnotes1::plannerFile() const {
    return program().services.app.file(u"weekly.rtf"_s);
}

void frmnotes1::newPlanner(FirstDay firstDay) {
    const MonthView& calendar = *ui.MonthView1;
    writePlannerPage(*ui.rt2,
                     {.day = calendar.Day(),
                      .month = calendar.Month(),
                      .year = calendar.Year(),
                      .dayOfWeek = calendar.DayOfWeek(),
                      .week = calendar.Week()},
                     firstDay);
    todo3();
}

void frmnotes1::NewPlannerSundayFirst() {
    newPlanner(FirstDay::Sunday);
}

void frmnotes1::NewPlannerMondayFirst() {
    newPlanner(FirstDay::Monday);
}

void frmnotes1::todo1() {
    if (!ui.rt2->Text().isEmpty() &&
        program().boxes().MsgBox(u"Overwrite current planner."_s,
                                 MsgFlags::YesNo + MsgFlags::QuestionIcon,
                                 u"New Planner"_s) == Answer::No)
        return;
    NewPlannerSundayFirst();
}

void frmnotes1::todo2() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        CommonDialog1.Filter = plannerFilter();
        CommonDialog1.FileName.clear();
        CommonDialog1.ShowOpen();
        ui.rt2->files().LoadFile(CommonDialog1.FileName);
    });
}

void frmnotes1::todo3() {
    endSilently([this] { ui.rt2->files().SaveFile(plannerFile()); });
}

QString frmnotes1::askPlannerName() {
    const App& app = program().services.app;
    for (;;) {
        CommonDialog1.CancelError = true;
        CommonDialog1.Filter = plannerFilter();
        CommonDialog1.FileName.clear();
        CommonDialog1.InitDir = app.Path();
        CommonDialog1.ShowSave();
        const QString name = CommonDialog1.FileName;
        // The two names to the letter: the same file told in another way is not looked for.
        if (name != plannerFile() && name != app.file(u"Vazno.rtf"_s))
            return name;
        program().boxes().MsgBox(
            u"Can't overwrite files needed for Orvalis. Choose a different name for backup file."_s,
            MsgFlags::StopIcon, u"Warning"_s);
    }
}

void frmnotes1::todo4() {
    endSilently([this] {
        const QString name = askPlannerName();
        if (FileExists(name) &&
            program().boxes().MsgBox(u"The File "_s + name +
                                         u" already exists.\r\nDo you want to replace it?"_s,
                                     MsgFlags::OkCancel) == Answer::Cancel)
            // What is chosen here is not taken: unless this one is cancelled, the file that exists
            // is replaced after all.
            CommonDialog1.ShowSave();
        ui.rt2->files().SaveFile(name);
    });
}

void frmnotes1::todo5() {
    chooseFontPassingOver(CommonDialog1, *ui.rt2);
    ui.rt2->setFocus();
}

} // namespace orvalis
