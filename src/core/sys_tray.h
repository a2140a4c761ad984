// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/form.h"
#include "core/tick.h"
#include "platform/tray_icon.h"

#include <QList>

#include <memory>

class QAction;
class QLabel;
class QMenu;

namespace orvalis {

class AlignedTimer;
class Program;

/// "Sys Tray Interface": the hidden form that stands for one stay in the tray. It keeps the icon's
/// record and menu, tells what the pointer does, and its timer is the tick while it lives.
class frmSysTray final : public Form, public TickOwner {
    Q_OBJECT
public:
    /// \param icon the form's own icon, with which it comes up in the tray.
    frmSysTray(Program& program, TrayIcon& tray, const QIcon& icon);
    ~frmSysTray() override;

    /// The tip up to its first NUL.
    QString ToolTip() const;
    /// At most 63 characters are kept. The tip that is there already makes no call.
    void SetToolTip(const QString& text);
    qint64 IconHandle() const;
    /// The icon that is there already makes no call.
    void SetIconHandle(const QIcon& icon);

    /// \param caption "-" makes a separator. \returns the entry's index.
    int AddMenuItem(const QString& caption, const QString& key, bool isDefault);
    /// Does nothing where there is no such entry.
    void EnableMenuItem(int index, bool enabled);
    /// Takes an entry away, and those behind it move up; entry 0 only loses its caption. Does
    /// nothing where there is no such entry.
    void RemoveMenuItem(int index);
    int DefaultMenuIndex() const { return m_defaultIndex; }
    /// An index without an entry sets 0.
    void SetDefaultMenuIndex(int index);
    void ShowMenu();

    /// The menu's entry, or none of that index.
    QAction* mnuSysTray(int index) const;

    void showClock(const QString& text) override;
    void disarm() override;

signals:
    // Button numbers: 1 left, 2 right.
    void SysTrayMouseDown(int Button);
    void SysTrayMouseUp(int Button);
    void SysTrayMouseMove();
    void SysTrayDoubleClick(int Button);
    void MenuClick(int index, const QString& key);

protected:
    void onLoad() override;
    void onQueryUnload() override;
    void onUnload() override;

private:
    bool ValidMenuIndex(int index) const;
    QAction* loadMenuItem(int index);
    void routeMouse(int code);
    void Timer1Tick();

    Program& m_program;
    TrayIcon& m_tray;
    TrayRecord m_record;
    std::unique_ptr<QMenu> m_mnuPopup;
    QList<QAction*> m_mnuSysTray;
    QLabel* m_lblVreme;
    AlignedTimer* m_Timer1;
    bool m_menuCreated = false;
    int m_defaultIndex = 0;
};

} // namespace orvalis
