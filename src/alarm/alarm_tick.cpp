// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_tick.h"

#include "alarm/reminder_scan.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "platform/shell.h"
#include "runtime/app.h"
#include "runtime/clock_text.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Red = 255;
constexpr int PlainTextFile = 1;

QTime wholeSecond(const QTime& time) {
    return {time.hour(), time.minute(), time.second()};
}

} // namespace

void AlarmTick::run(TickOwner& owner) {
    // One look at the clock, so that date and time of a tick belong together.
    const QDateTime now = m_program.services.clock.now();
    owner.showClock(ClockText(m_program.state.timeFormatIndex, now.time()));
    // Only the alarm's own second fires it. One that was missed stays armed for the next day.
    if (m_program.state.alarmArmed && wholeSecond(now.time()) == m_program.state.alarmTime)
        fire(owner);
    if (m_program.state.RemindPending)
        scanForReminder(m_program, now);
}

void AlarmTick::fire(TickOwner& owner) {
    if (m_program.windows.get<OptionsWindow>().builtInPlayer())
        m_program.windows.get<AlarmWindow>().form().Show();
    else
        notify();
    owner.disarm();
}

void AlarmTick::notify() {
    QString& mediaFile = m_program.state.alarmMediaFile;
    if (mediaFile.isEmpty())
        mediaFile = m_program.services.app.companion(u"Alarm.wav"_s);
    m_program.services.shell.open(mediaFile);

    StickerWindow& xn = m_program.stickers->globalXn();
    RichTextBox& Text1 = xn.Text1();
    Text1.SetSelBold(true);
    Text1.SetSelColor(Red);
    Text1.SetText(Text1.Text() + u"\r\n"_s);
    Text1.files().LoadFile(m_program.services.app.file(u"Msg.txt"_s), PlainTextFile);
    // A text file carries no format; the message takes that of the sticker.
    Text1.SetSelLength(int(Text1.Text().size()));
    Text1.SetSelBold(true);
    Text1.SetSelColor(Red);
    Text1.SetSelStart(0);
    xn.popUp();
}

} // namespace orvalis
