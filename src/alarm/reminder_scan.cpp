// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/reminder_scan.h"

#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "platform/sound_player.h"
#include "runtime/app.h"
#include "runtime/format.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Blue = 16711680;

} // namespace

QString reminderKey(const QDateTime& moment) {
    return Format(moment, u"dddd, MMMM dd, yyyy") + u'/' + Format(moment, u"hh:mm:ss");
}

bool seekReminder(GridModel& grid, const QString& key) {
    for (int i = 0; i < grid.Rows(); ++i) {
        grid.setRow(i);
        if (grid.Text() == key)
            return true;
    }
    return false;
}

void scanForReminder(Program& program, const QDateTime& moment) {
    MSFlexGrid& MS2 = program.windows.get<StartWindow>().MS2();
    if (!seekReminder(MS2.grid(), reminderKey(moment)))
        return;
    MS2.setRow(MS2.Row() + 1);

    StickerWindow& sticker = program.stickers->newXn();
    RichTextBox& Text1 = sticker.Text1();
    Text1.SetTextRTF(u"\r\nREMINDER:"_s);
    Text1.SetSelBold(true);
    Text1.SetSelColor(Blue);
    Text1.SetText(Text1.Text() + u"\r\n"_s + MS2.Text());
    program.services.sound.playAndWait(program.services.app.companion(u"Alarm.wav"_s));
    sticker.popUp();
    program.state.RemindFired = true;

    // Each grid loses two rows at its own current row, which in the list on the panel is wherever
    // the user left it; the rows need not be the same ones.
    ReminderPanel& panel = program.windows.get<ReminderPanel>();
    const int panelRow = panel.MS3().Row();
    panel.MS3().RemoveItem(panelRow);
    panel.MS3().RemoveItem(panelRow);
    const int row = MS2.Row();
    MS2.RemoveItem(row);
    MS2.RemoveItem(row);
    panel.sv3();
    program.state.RemindPending = MS2.Row() != 1;
}

} // namespace orvalis
