// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/reminder_road.h"

using namespace Qt::StringLiterals;

namespace orvalis::driver {

ReminderRoad::ReminderRoad(DrivenProgram& program, Tell tell)
    : m_program(program)
    , m_tell(std::move(tell)) {}

void ReminderRoad::step(const QString& words, const std::function<bool()>& action) {
    if (!m_trouble.isEmpty())
        return;
    m_tell(words);
    if (!action())
        m_trouble = u"could not: "_s + words;
}

void ReminderRoad::openPanel() {
    step(
        u"open the Reminder panel from the main window"_s,
        [this] {
            return m_program.waitVisible(u"frmnotes"_s) &&
                   m_program.click(u"frmnotes/imgopen1"_s) &&
                   m_program.waitVisible(u"frmnotes1/rt1"_s);
        });
}

void ReminderRoad::typeMessage(const QString& title, const QString& message) {
    step(
        u"type the title \"%1\" and the message \"%2\""_s.arg(title, message),
        [&] {
            if (!m_program.click(u"frmnotes1/txt1"_s))
                return false;
            m_program.key(u"ctrl+a"_s);
            m_program.type(title);
            if (!m_program.click(u"frmnotes1/rt1"_s))
                return false;
            m_program.type(message);
            return m_program.waitText(u"frmnotes1/txt1"_s, title) &&
                   m_program.waitText(u"frmnotes1/rt1"_s, message);
        });
}

void ReminderRoad::tickRemind() {
    step(
        u"tick \"Remind Me\""_s,
        [this] {
            return m_program.click(u"frmnotes1/chkRemind"_s) &&
                   m_program.waitVisible(u"frmnotes1/Frame3"_s);
        });
}

void ReminderRoad::pickDate(QDate date) {
    step(
        u"pick %1 on the calendar"_s.arg(date.toString(Qt::ISODate)),
        [&] {
            // The calendar's sheet: a row of day names, then six weeks from Sunday on, of which the
            // first always begins in the month before.
            const QRect sheet = m_program.control(u"frmnotes1/qt_calendar_calendarview"_s).rect;
            const int lead = QDate(date.year(), date.month(), 1).dayOfWeek() % 7;
            const int cell = (lead == 0 ? 7 : lead) + date.day() - 1;
            const QPoint place(sheet.x() + (2 * (cell % 7) + 1) * sheet.width() / 14,
                               sheet.y() + (2 * (cell / 7 + 1) + 1) * sheet.height() / 14);
            return sheet.isValid() && m_program.clickAt(place);
        });
}

void ReminderRoad::pickTime(int hour, int minute) {
    const QString hourText = u"%1"_s.arg(hour, 2, 10, QChar(u'0'));
    const QString minuteText = u"%1"_s.arg(minute, 2, 10, QChar(u'0'));
    step(u"set the time to %1:%2"_s.arg(hourText, minuteText), [&] {
        const std::pair<QString, QString> boxes[] = {{u"frmnotes1/Combo1"_s, hourText},
                                                     {u"frmnotes1/Combo2"_s, minuteText}};
        for (const auto& [box, text] : boxes) {
            const QRect place = m_program.control(box).rect;
            if (!m_program.clickAt({place.x() + place.width() / 4, place.center().y()}))
                return false;
            m_program.key(u"ctrl+a"_s);
            m_program.type(text);
        }
        return m_program.waitText(u"frmnotes1/Label5"_s, hourText + u':' + minuteText + u":00"_s);
    });
}

void ReminderRoad::typeEventMessage(const QString& message) {
    step(
        u"type the event message \"%1\""_s.arg(message),
        [&] {
            if (!m_program.click(u"frmnotes1/rtMs2"_s))
                return false;
            m_program.type(message);
            return m_program.waitText(u"frmnotes1/rtMs2"_s, message);
        });
}

void ReminderRoad::pressOk() {
    step(
        u"press OK"_s,
        [this] {
            return m_program.click(u"frmnotes1/Button1"_s) &&
                   m_program.waitVisible(u"frmnotes1/Frame2"_s);
        });
}

void ReminderRoad::pressSave() {
    step(
        u"save the message"_s,
        [this] {
            return m_program.click(u"frmnotes1/imgSave"_s) &&
                   waitUntil([this] { return m_program.fileBytes(u"tmp2.brf"_s).size() > 10; },
                             10000);
        });
}

bool ReminderRoad::waitForSticker(int milliseconds) {
    step(u"wait for the reminder to pop up"_s,
         [&] { return m_program.waitVisible(u"xn/Text1"_s, milliseconds); });
    return m_trouble.isEmpty();
}

} // namespace orvalis::driver
