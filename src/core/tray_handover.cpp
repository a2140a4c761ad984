// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/tray_handover.h"

#include "controls/image.h"
#include "controls/message_boxes.h"
#include "controls/mouse_numbers.h"
#include "core/chrome_window.h"
#include "core/program.h"
#include "core/sys_tray.h"
#include "runtime/at_rest.h"

#include <QAction>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr double SharpestRatio = 2;

/// A picture of a window as an icon that is sharp in the trays of any desktop.
QIcon iconOf(const Image& image) {
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(image.Picture().pixmap(QSize(side, side), 1));
    icon.addPixmap(image.Picture().pixmap(QSize(64, 64), SharpestRatio));
    return icon;
}

} // namespace

TrayHandover::TrayHandover(ChromeWindow& window, TrayIcon& tray)
    : m_window(window)
    , m_tray(tray) {}

TrayHandover::~TrayHandover() = default;

void TrayHandover::TrayBuild() {
    const QString alarm = m_window.alarmShown();
    const bool armed = !alarm.isEmpty();
    if (m_idleIcon.isNull()) {
        m_idleIcon = iconOf(*m_window.trayIcon(0));
        m_armedIcon = iconOf(*m_window.trayIcon(1));
    }
    if (m_frmSysTray)
        unloadTrayForm();
    m_frmSysTray = std::make_unique<frmSysTray>(m_window.program(), m_tray, m_idleIcon);
    frmSysTray& form = *m_frmSysTray;
    connect(&form, &frmSysTray::MenuClick, this,
            [this](int, const QString& key) { MenuClick(key); });
    connect(&form, &frmSysTray::SysTrayDoubleClick, this, &TrayHandover::SysTrayDoubleClick);
    connect(&form, &frmSysTray::SysTrayMouseDown, this, &TrayHandover::SysTrayMouseDown);
    connect(&form, &frmSysTray::SysTrayMouseMove, this, &TrayHandover::SysTrayMouseMove);
    form.load();

    form.AddMenuItem(m_window.row().trayEntry, u"open"_s, true);
    form.AddMenuItem(u"-"_s, {}, false);
    form.AddMenuItem(u"Create Sticker"_s, u"nalep"_s, false);
    form.AddMenuItem(u"-"_s, {}, false);
    if (armed) {
        form.AddMenuItem(u"Disable Alarm"_s, u"disable"_s, false);
        form.AddMenuItem(u"-"_s, {}, false);
    }
    form.AddMenuItem(u"Options"_s, u"options"_s, false);
    form.AddMenuItem(u"-"_s, {}, false);
    form.AddMenuItem(u"Exit"_s, u"close"_s, false);

    form.SetToolTip(armed ? m_window.row().trayArmedWord + u"Alarm set at "_s + alarm
                          : m_window.row().trayWord);
    form.SetIconHandle(armed ? m_armedIcon : m_idleIcon);
    m_window.Hide();
}

void TrayHandover::TrayReset() {
    if (!m_frmSysTray)
        return;
    // "Disable Alarm" and its separator in a menu that was built while an alarm was set. In one
    // that was built without, the same places hold "Options" and its separator, and they go too.
    for (const int index : {4, 5})
        if (QAction* entry = m_frmSysTray->mnuSysTray(index))
            entry->setVisible(false);
    m_frmSysTray->SetToolTip(u" Orvalis "_s);
    m_frmSysTray->SetIconHandle(m_idleIcon);
}

void TrayHandover::MenuClick(const QString& key) {
    Program& program = m_window.program();
    if (key == u"open"_s) {
        restore();
    } else if (key == u"close"_s) {
        close();
    } else if (key == u"disable"_s) {
        m_window.AlarmOff();
        TrayReset();
    } else if (key == u"options"_s) {
        program.windows.get<OptionsWindow>().form().Show();
    } else if (key == u"nalep"_s) {
        program.stickers->newFrmstick().form().Show();
    }
}

void TrayHandover::close() {
    Program& program = m_window.program();
    if (program.state.alarmArmed) {
        program.boxes().MsgBox(u"The alarm is set.\nDisable alarm before you quit."_s,
                               MsgFlags::InformationIcon);
        return;
    }
    if (program.state.StickerCount > 0 &&
        program.boxes().MsgBox(u"This will close all created stickers. Continue?"_s,
                               MsgFlags::YesNo + MsgFlags::InformationIcon,
                               u"Exit Orvalis"_s) == Answer::No)
        return;
    program.ExitProgram();
}

void TrayHandover::SysTrayDoubleClick(int button) {
    if (button != RightButton)
        restore();
}

void TrayHandover::SysTrayMouseDown(int button) {
    if (button == RightButton)
        m_frmSysTray->ShowMenu();
}

void TrayHandover::SysTrayMouseMove() {
    if (!m_window.program().state.alarmArmed)
        TrayReset();
}

void TrayHandover::restore() {
    m_window.Show();
    unloadTrayForm();
    m_window.program().windows.get<StartWindow>().setTimer23Enabled(true);
}

void TrayHandover::unloadTrayForm() {
    // A choice that was made twice before the first could be met must find nobody listening.
    m_frmSysTray->disconnect(this);
    m_frmSysTray->unload();
    // It may be one of its own events that sends it away.
    deleteAtRest(std::move(m_frmSysTray), *this);
}

} // namespace orvalis
