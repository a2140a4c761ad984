// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "driver/driven_program.h"

#include <QDate>
#include <QTime>

#include <functional>

namespace orvalis::driver {

/// One reminder on its way from the key to the pop-up, walked as a person walks it. The tour and
/// the journeys share it. Each step tells what it does and, once it failed, no further step is
/// taken.
class ReminderRoad {
public:
    using Tell = std::function<void(const QString&)>;

    ReminderRoad(DrivenProgram& program, Tell tell);

    /// Where the first step failed; empty while all is well.
    const QString& trouble() const { return m_trouble; }

    /// From the main window to the Reminder panel.
    void openPanel();
    void typeMessage(const QString& title, const QString& message);
    /// Ticks the box that brings the date and time up.
    void tickRemind();
    /// Clicks a day of the month that the calendar shows.
    void pickDate(QDate date);
    void pickTime(int hour, int minute);
    void typeEventMessage(const QString& message);
    void pressOk();
    void pressSave();
    /// Waits for the sticker of a reminder.
    bool waitForSticker(int milliseconds);

private:
    void step(const QString& words, const std::function<bool()>& action);

    DrivenProgram& m_program;
    Tell m_tell;
    QString m_trouble;
};

} // namespace orvalis::driver
