// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_panel.h"

#include "controls/label.h"
#include "controls/month_view.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "planner/planner_text.h"
#include "planner/todo_entry.h"
#include "runtime/app.h"

#include <QCheckBox>
#include <QLineEdit>

namespace orvalis {

using namespace Qt::StringLiterals;
using planner::Black;

namespace {

constexpr quint32 Red = 255;
constexpr double DueLineFontSize = 8;

void toEnd(RichTextBox& box) {
    box.SetSelStart(static_cast<int>(box.Text().size()));
}

void setDueLineFormat(RichTextBox& box, quint32 colour) {
    box.SetSelFontName(u"Arial"_s);
    box.SetSelFontSize(DueLineFontSize);
    box.SetSelBold(false);
    box.SetSelItalic(false);
    box.SetSelStrikeThru(false);
    box.SetSelUnderline(false);
    box.SetSelColor(colour);
}

} // namespace

void frmnotes1::imgSave_Click() {
    const QDate date = ui.MonthView1->Value();
    resumeNext(
        [this] {
            if (ui.rt1->Text().isEmpty())
                ui.rt1->SetText(u"Message not set"_s);
        },
        [&] { appendEntry(date); }, [&] { addToLists(date); }, [this] { saveAndReadBack(); },
        [this] { selectSubPanel(2); }, [this] { clearEntry(); });
}

void frmnotes1::appendEntry(QDate date) {
    RichTextBox& document = *ui.rt1a;
    const RichTextBox::Batch batch(document);
    resumeNext([&] { toEnd(document); }, [&] { document.SetSelText(entryTitle(ui.txt1->text())); },
               [&] { document.SetSelText(entryMessageBreak()); },
               [&] { document.SetSelRTF(ui.rt1->TextRTF()); },
               [&] { setDueLineFormat(document, ui.chkTop->isChecked() ? Red : Black); },
               [&] { document.SetSelText(entryDueLine(date)); },
               [&] { document.SetSelColor(Black); },
               [&] { document.SetSelText(entrySavedLine(program().services.clock.now())); });
}

void frmnotes1::addToLists(QDate date) {
    resumeNext(
        [&] {
            if (ui.chkTop->isChecked())
                addPriorityItem(ui.MS1->grid(), date, ui.rt1->Text());
        },
        [&] {
            if (ui.chkRemind->isChecked()) {
                addRemindItem(ui.MS3->grid(), remindHeader(date, ui.Label5->Caption()),
                              ui.rtMs2->Text());
                program().state.RemindPending = true;
            }
        });
}

void frmnotes1::saveAndReadBack() {
    resumeNext([this] { ui.rt1a->files().SaveFile(program().services.app.file(u"Vazno.rtf"_s)); },
               [this] { toEnd(*ui.rt1a); }, [this] { MatSave1(ui.MS1->grid()); },
               // The hidden copy would go first and not stay, so only what the panel shows is put
               // in place: between the two a kill would leave what the hidden list holds, which at
               // the first message of a run is nothing.
               [this] { SaveTmp2(ui.MS3->grid()); }, [this] { LoadTmp1(ui.MS1->grid()); },
               [this] { LoadTmp2(hiddenReminders()); }, [this] { LoadTmp2(ui.MS3->grid()); });
}

void frmnotes1::clearEntry() {
    ui.rt1->SetTag({});
    ui.chkRemind->setChecked(false);
    ui.chkTop->setChecked(false);
    ui.rt1->SetText({});
    ui.rtMs2->SetText({});
}

} // namespace orvalis
