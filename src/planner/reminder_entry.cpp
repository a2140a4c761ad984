// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_panel.h"

#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "controls/selection_font.h"
#include "core/program.h"
#include "runtime/time_parts.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr double NewMessageFontSize = 8;

QString messageNotSet() {
    return u"Message not set"_s;
}

/// Kept with the message once its text has changed.
QString changedTag() {
    return u"promena"_s;
}

} // namespace

void frmnotes1::connectEntryArea() {
    connect(ui.rt1, &RichTextBox::Change, this, [this] { ui.rt1->SetTag(changedTag()); });
    connect(ui.chkRemind, &QCheckBox::toggled, this, &frmnotes1::chkRemind_Click);
    connect(
        ui.Combo1, &ComboBox::Change, this, [this] { Combo_Change(*ui.Combo1, LastHour); });
    connect(ui.Combo2, &ComboBox::Change, this, [this] { Combo_Change(*ui.Combo2, LastMinute); });
    connect(ui.Combo1, &ComboBox::Click, this, &frmnotes1::showTime);
    connect(ui.Combo2, &ComboBox::Click, this, &frmnotes1::showTime);
    connect(ui.Button1, &GGCommand::Click, this, &frmnotes1::Button1_Click);
    connect(ui.Button2, &GGCommand::Click, this, &frmnotes1::Button2_Click);
    connect(ui.imgNew, &Image::Click, this, &frmnotes1::imgNew_Click);
    connect(ui.imgSave, &Image::Click, this, &frmnotes1::imgSave_Click);
    connect(ui.Command2, &GGCommand::Click, this, &frmnotes1::Command2_Click);
    showEntryFrame(EntryFrame::Message);
}

void frmnotes1::showEntryFrame(EntryFrame frame) {
    ui.Frame2->setVisible(frame == EntryFrame::Message);
    ui.Frame3->setVisible(frame == EntryFrame::Reminder);
    ui.Frame1->setVisible(frame == EntryFrame::Find);
}

void frmnotes1::chkRemind_Click() {
    if (!ui.chkRemind->isChecked())
        return;
    ui.imgSave->setEnabled(false);
    showEntryFrame(EntryFrame::Reminder);
    // The box that had the focus is hidden now: the keys go on where the user goes on.
    ui.Combo1->setFocus(Qt::TabFocusReason);
}

void frmnotes1::endReminderFrame() {
    ui.imgSave->setEnabled(true);
    showEntryFrame(EntryFrame::Message);
    ui.rt1->setFocus();
}

void frmnotes1::Combo_Change(const ComboBox& combo, int limit) {
    if (fitsTimeLabel(combo.Text(), limit))
        showTime();
    else
        program().boxes().MsgBox(u"Invalid input for time."_s, MsgFlags::StopIcon);
}

void frmnotes1::showTime() {
    ui.Label5->setCaption(timeLabel(ui.Combo1->Text(), ui.Combo2->Text()));
}

void frmnotes1::Button1_Click() {
    if (ui.rtMs2->Text().isEmpty())
        ui.rtMs2->SetText(messageNotSet());
    ui.Combo1->setText(twoDigits(ui.Combo1->Text()));
    ui.Combo2->setText(twoDigits(ui.Combo2->Text()));
    endReminderFrame();
}

void frmnotes1::Button2_Click() {
    endReminderFrame();
    ui.chkRemind->setChecked(false);
    ui.rt1->SetText({});
    ui.rtMs2->SetText({});
}

bool frmnotes1::hasUnsavedMessage() const {
    return ui.rt1->Tag() == changedTag() && !ui.rt1->Text().isEmpty();
}

bool frmnotes1::askToSave(const QString& question) {
    return hasUnsavedMessage() &&
           program().boxes().MsgBox(question, MsgFlags::YesNo) == Answer::Yes;
}

std::vector<UnsavedText> frmnotes1::unsavedTexts() const {
    std::vector<UnsavedText> texts;
    if (!isLoaded())
        return texts;
    if (hasUnsavedMessage())
        texts.push_back(
            {u"Reminder panel, message \"%1\""_s.arg(ui.txt1->text()), ui.rt1->TextRTF()});
    // What a reminder is to say is typed as well, and goes with the message at its save.
    const QString event = ui.rtMs2->Text();
    if (!event.isEmpty() && event != messageNotSet())
        texts.push_back({u"Reminder panel, event message"_s, ui.rtMs2->TextRTF()});
    return texts;
}

void frmnotes1::imgNew_Click() {
    if (askToSave(u"Save changes?"_s))
        imgSave_Click();
    ui.rt1->SetTag({});
    ui.rt1->setVisible(true);
    ui.rt1->setReadOnly(false);
    ui.rt1->SetText({});
    ui.txt1->setText(u"Title"_s);
    showEntryFrame(EntryFrame::Message);
    ui.rt1->SetFontSize(NewMessageFontSize);
}

void frmnotes1::Command2_Click() {
    if (!chooseFontOfSelection(CommonDialog1, *ui.rt1))
        return;
    endSilently([this] {
        ui.rt1a->SetSelFontName(CommonDialog1.FontName);
        ui.rt1a->SetSelFontSize(CommonDialog1.FontSize);
        ui.rt1->setFocus();
    });
}

} // namespace orvalis
