// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/chrome_table.h"

#include "skin/type.h"

#include <array>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int MainDesignWidth = 4800;   // twips
constexpr int PanelDesignWidth = 10530; // twips

PanelLabel label(const QString& name, const QString& caption, ChromeKind target) {
    return {name, caption, target};
}

const std::array<ChromeRow, 5>& rows() {
    static const std::array<ChromeRow, 5> table{{
        {.kind = ChromeKind::Main,
         .name = u"frmnotes"_s,
         .title = {},
         .background = u"Image5"_s,
         .backgroundPicture = u"main_background"_s,
         .designWidth = MainDesignWidth,
         .clockTimer = u"Timer23"_s,
         .clockInterval = 1000,
         .setToolTip = u" Set Alarm "_s,
         .helpToolTip = u"Help"_s,
         .labels = {},
         .labelEvent = LabelEvent::MouseDown,
         .leaving = {},
         .minimising = {ChromeStep::TimerOff, ChromeStep::NoteWindow, ChromeStep::HideWindow,
                        ChromeStep::TrayBuild},
         .trayEntry = u"Show Orvalis"_s,
         .trayWord = u" Orvalis "_s,
         .trayArmedWord = u" Orvalis - "_s},
        {.kind = ChromeKind::Reminder,
         .name = u"frmnotes1"_s,
         .title = u"REMINDER"_s,
         .background = u"Image21"_s,
         .backgroundPicture = u"panel_background"_s,
         .designWidth = PanelDesignWidth,
         .clockTimer = u"Timer2"_s,
         .clockInterval = 1000,
         .setToolTip = u" Set alarm "_s,
         .helpToolTip = u"Help/Options"_s,
         .labels = {label(u"lblNot"_s, u"Notes"_s, ChromeKind::Notes),
                    label(u"lblAdd"_s, u"Address"_s, ChromeKind::Address),
                    label(u"lblPass"_s, u"Password"_s, ChromeKind::Password)},
         .labelEvent = LabelEvent::MouseDown,
         .leaving = {ChromeStep::HideWindow},
         .minimising = {ChromeStep::TrayBuild, ChromeStep::TimerOff, ChromeStep::NoteWindow},
         .trayEntry = u"Show Reminder"_s,
         .trayWord = u" Reminder "_s,
         .trayArmedWord = u" Reminder - "_s},
        {.kind = ChromeKind::Notes,
         .name = u"frmnotes2"_s,
         .title = u"NOTES"_s,
         .background = u"Image34"_s,
         .backgroundPicture = u"book_background"_s,
         .designWidth = PanelDesignWidth,
         .clockTimer = u"Timer3"_s,
         .clockInterval = 500,
         .setToolTip = u" Set alarm "_s,
         .helpToolTip = u"Help/Options"_s,
         .labels = {label(u"lblNot"_s, u"Reminder"_s, ChromeKind::Reminder),
                    label(u"lblAdd"_s, u"Address"_s, ChromeKind::Address),
                    label(u"lblPass"_s, u"Password"_s, ChromeKind::Password)},
         .labelEvent = LabelEvent::Click,
         .leaving = {ChromeStep::HideWindow, ChromeStep::UnloadLetters},
         .minimising = {ChromeStep::TrayBuild, ChromeStep::TimerOff, ChromeStep::UnloadLetters,
                        ChromeStep::NoteWindow},
         .trayEntry = u"Show Notes"_s,
         .trayWord = u" Notes "_s,
         .trayArmedWord = u" Notes - "_s},
        {.kind = ChromeKind::Address,
         .name = u"frmnotes3"_s,
         .title = u"ADDRESS"_s,
         .background = u"Image5"_s,
         .backgroundPicture = u"panel_background"_s,
         .designWidth = PanelDesignWidth,
         .clockTimer = u"Timer4"_s,
         .clockInterval = 1000,
         .setToolTip = u" Set alarm "_s,
         .helpToolTip = u"Help/Options"_s,
         .labels = {label(u"lblNot"_s, u"Reminder"_s, ChromeKind::Reminder),
                    label(u"lblAdd"_s, u"Notes"_s, ChromeKind::Notes),
                    label(u"lblPass"_s, u"Password"_s, ChromeKind::Password)},
         .labelEvent = LabelEvent::Click,
         .leaving = {ChromeStep::UnloadPrint, ChromeStep::HideWindow},
         .minimising = {ChromeStep::TrayBuild, ChromeStep::UnloadPrint, ChromeStep::NoteWindow,
                        ChromeStep::TimerOff},
         .trayEntry = u"Show Address"_s,
         .trayWord = u" Address "_s,
         .trayArmedWord = u" Address - "_s},
        {.kind = ChromeKind::Password,
         .name = u"frmnotes4"_s,
         .title = u"PASSWORD"_s,
         .background = u"Image26"_s,
         .backgroundPicture = u"panel_background_small"_s,
         .designWidth = PanelDesignWidth,
         .clockTimer = u"Timer5"_s,
         .clockInterval = 1000,
         .setToolTip = u" Set alarm "_s,
         .helpToolTip = u"Help/Options"_s,
         .labels = {label(u"lblNot"_s, u"Reminder"_s, ChromeKind::Reminder),
                    label(u"lblAdd"_s, u"Notes"_s, ChromeKind::Notes),
                    label(u"lblPass"_s, u"Address"_s, ChromeKind::Address)},
         .labelEvent = LabelEvent::Click,
         .leaving = {ChromeStep::HideWindow},
         .minimising = {ChromeStep::TimerOff, ChromeStep::TrayBuild, ChromeStep::NoteWindow},
         .trayEntry = u"Show Password"_s,
         .trayWord = u" Password "_s,
         .trayArmedWord = u" Password - "_s},
    }};
    return table;
}

} // namespace

const ChromeRow& chromeRow(ChromeKind kind) {
    return rows().at(static_cast<std::size_t>(kind));
}

const ChromeLayout& chromeLayout(ChromeKind kind) {
    static const ChromeLayout main{
        .mini = {226, 18, 22, 22},
        .help = {252, 18, 22, 22},
        .exit = {278, 18, 22, 22},
        .set = {244, 71, 40, 40},
        .stop = {244, 71, 40, 40},
        .clock = {26, 60, 198, 62},
        .alarm = {26, 98, 198, 24},
        .title = {},
        .labels = {},
        .clockAlignment = Qt::AlignCenter,
        .alarmAlignment = Qt::AlignCenter,
        .setPicture = u"alarm_set"_s,
        .stopPicture = u"alarm_stop"_s,
        .clockSpacing = 2,
        .alarmPoints = skin::points::Title,
        .alarmLead = u"Alarm"_s,
    };
    static const ChromeLayout panel{
        .mini = {615, 13, 22, 22},
        .help = {639, 13, 22, 22},
        .exit = {663, 13, 22, 22},
        .set = {382, 13, 22, 22},
        .stop = {382, 13, 22, 22},
        .clock = {408, 13, 134, 24},
        .alarm = {542, 13, 56, 24},
        .title = {24, 14, 118, 22},
        .labels = {QRect(146, 14, 70, 22), QRect(218, 14, 70, 22), QRect(290, 14, 72, 22)},
        .clockAlignment = Qt::AlignLeft | Qt::AlignVCenter,
        .alarmAlignment = Qt::AlignRight | Qt::AlignVCenter,
        .setPicture = u"alarm_set_small"_s,
        .stopPicture = u"alarm_stop_small"_s,
        .clockSpacing = 0,
        .alarmPoints = skin::points::PanelLabel,
        .alarmLead = {},
    };
    static const ChromeLayout book = [] {
        constexpr int Higher = 9;
        ChromeLayout layout = panel;
        for (QRect* place :
             {&layout.mini, &layout.help, &layout.exit, &layout.set, &layout.stop, &layout.title,
              &layout.labels[0], &layout.labels[1], &layout.labels[2]})
            place->translate(0, -Higher);
        layout.clock = {408, 4, 132, 21};
        layout.alarm = {542, 4, 56, 21};
        return layout;
    }();
    switch (kind) {
    case ChromeKind::Main:
        return main;
    case ChromeKind::Notes:
        return book;
    default:
        return panel;
    }
}

} // namespace orvalis
