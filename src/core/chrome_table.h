// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

#include <array>
#include <vector>

namespace orvalis {

/// The five windows that carry the chrome. The number is what `minimisedFrom` takes.
enum class ChromeKind { Main = 0, Reminder = 1, Notes = 2, Address = 3, Password = 4 };

/// One statement of a window's way off the screen. The windows do the same things in orders of
/// their own.
enum class ChromeStep {
    HideWindow,
    TrayBuild,
    TimerOff,      ///< `frmStart.Timer23.Enabled` false
    NoteWindow,    ///< `minimisedFrom` takes the window's number
    UnloadLetters, ///< `frmpisma`
    UnloadPrint,   ///< `frmPrint`
};

/// A label on a panel that leads to another panel.
struct PanelLabel {
    QString name;
    QString caption;
    ChromeKind target;
};

enum class LabelEvent { MouseDown, Click };

/// Where the chrome's controls stand, in pixels at scale 1.
struct ChromeLayout {
    QRect mini;
    QRect help;
    QRect exit;
    QRect set;
    QRect stop;
    QRect clock;
    QRect alarm;
    QRect title; ///< of a panel
    std::array<QRect, 3> labels;
    Qt::Alignment clockAlignment;
    Qt::Alignment alarmAlignment;
    QString setPicture;
    QString stopPicture;
    qreal clockSpacing; ///< between the clock's signs, in pixels at scale 1
    int alarmPoints;
    QString alarmLead; ///< the word ahead of the alarm's time
};

/// What differs between the five windows in the chrome that they share.
struct ChromeRow {
    ChromeKind kind;
    QString name;  ///< of the window
    QString title; ///< of the panel, in `lblRem`; empty on the main window
    QString background;
    QString backgroundPicture;
    int designWidth; ///< twips: where the window's controls have their design places
    QString clockTimer;
    int clockInterval; ///< milliseconds
    QString setToolTip;
    QString helpToolTip;
    std::vector<PanelLabel> labels;
    LabelEvent labelEvent;
    std::vector<ChromeStep> leaving;    ///< what is done before a label's target shows
    std::vector<ChromeStep> minimising; ///< `imgMini`
    QString trayEntry;                  ///< first entry of the tray's menu
    QString trayWord;                   ///< the tray's tool tip while no alarm is set
    QString trayArmedWord;              ///< its beginning while one is
};

const ChromeRow& chromeRow(ChromeKind kind);
/// The main window has a layout of its own. The panels share one, but for the Notes panel, whose
/// pages begin higher up.
const ChromeLayout& chromeLayout(ChromeKind kind);

} // namespace orvalis
