// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTime>

namespace orvalis {

/// The state that the program's windows share. It lives as long as the run and is kept nowhere.
struct SharedState {
    // The alarm.
    bool alarmArmed = false;
    QString alarmTimeText; ///< Armed time as shown, "hh:mm:00".
    QTime alarmTime;       ///< The same as a time of day.
    QString alarmMediaFile;
    QString alarmCaptionMirror; ///< Copy of the last alarm caption that changed in a window.

    // Reminders.
    bool RemindPending = false; ///< The scan runs on each tick.
    bool RemindFired = false;   ///< A reminder has popped up in this run.

    // Windows.
    int timeFormatIndex = 0; ///< Clock format, 0 to 12; anything else shows an empty clock.
    bool trayActive = false; ///< A tray form is loaded.
    int minimisedFrom = 0;   ///< Which window went to the tray last, 0 to 4.

    // Stickers.
    int StickerNo = 0;    ///< Stickers created in this run; numbers are not used twice.
    int StickerCount = 0; ///< Sticker windows open now.
};

} // namespace orvalis
