// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/form.h"
#include "core/chrome_table.h"
#include "core/roles.h"
#include "core/tray_owner.h"

#include <array>

namespace orvalis {

class AlarmLabel;
class AlignedTimer;
class ClockLabel;
class Image;
class Label;
class Program;
class WindowDrag;

/// What the five windows share: a picture without frame that is dragged by its background, three
/// image buttons (to the tray, help, close), a clock, the alarm's display, and the labels that lead
/// from panel to panel. What differs between the windows is a row of the chrome's table.
class ChromeWindow : public Form {
    Q_OBJECT
public:
    /// Makes the window's background and the controls of the chrome; a window's own controls are
    /// made after them and lie above.
    ChromeWindow(Program& program, const ChromeRow& row);
    ~ChromeWindow() override;

    const ChromeRow& row() const { return m_row; }
    Program& program() const { return m_program; }

    /// `imgMini` click: to the tray. Where no tray side is known the window stays as it is.
    void miniClick();
    /// `imgExit` click: refuses while an alarm is shown, goes to the tray while stickers are open
    /// or the program is set to stay minimised, and otherwise ends the program.
    void exitClick();
    void showAlarm();                 ///< `SetAlarm0`
    void resetTray();                 ///< `Pici`: `TrayReset` while the program is in the tray
    void AlarmOff();                  ///< the window's alarm display and the alarm itself
    QString alarmShown() const;       ///< `lblAlarm.Caption`
    Image* trayIcon(int index) const; ///< `imgIcon`: 0 idle, 1 armed

protected:
    /// A window's own step of `imgExit`, after the alarm's refusal. \returns false to stay.
    virtual bool exitExtra() { return true; }

    /// Leads to another window, which comes up where this one stands. Nothing happens while nobody
    /// makes such a window.
    void openPanel(ChromeKind target);
    /// What every window's load has in common: the clock gets its font, the controls the layout of
    /// the screen, the window the size of its background picture. Once, in the load handler.
    void layOut();
    /// Gives the window the size of its background picture.
    void takeSizeOfBackground();
    /// Puts the chrome behind the window's own controls in the order of the Tab key.
    void tabToChromeAfter(QWidget& last);
    /// Gives the normal picture back to an image button that the pointer has left.
    void HoverReset();
    /// Lets a picture that covers the form behave as the form itself: under the pointer hover ends,
    /// the left button drags.
    void behaveAsBackground(Image* picture);

    void onActivate() override;
    void onCloseRequested() override { exitClick(); }
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    Image* background = nullptr;
    Image* imgMini = nullptr;
    Image* imgHelp = nullptr;
    Image* imgExit = nullptr;
    Image* imgSet = nullptr;
    Image* imgStop = nullptr;
    ClockLabel* lblVreme = nullptr;
    AlarmLabel* lblAlarm = nullptr;
    Label* lblRem = nullptr;                ///< none on the main window
    std::array<Label*, 3> panelLabels = {}; ///< `lblNot`, `lblAdd`, `lblPass`; none on the main one

private:
    /// `imgX` on show, `imgXa` with the hover picture, `imgXb` with the normal one.
    struct Triple {
        Image* shown = nullptr;
        Image* hover = nullptr;
        Image* normal = nullptr;
    };

    void makeTriple(Triple& triple, const QString& name, const QString& picture,
                    const QString& toolTip, const QRect& place);
    void makeAlarmDisplay();
    void makeClock();
    void makePanelLabels();
    void hover(const Triple& triple);
    void updateClock();
    void showDateInClock();
    void stopClick();
    void showBell(bool armed);
    void alarmCaptionChanged();
    void run(const std::vector<ChromeStep>& steps);

    Program& m_program;
    const ChromeRow& m_row;
    std::array<Triple, 3> m_triples;
    std::array<Image*, 2> m_imgIcon = {};
    AlignedTimer* m_clockTimer = nullptr;
    WindowDrag* m_drag = nullptr;
    std::unique_ptr<TrayOwner> m_tray;
    bool m_alarmShownHere = false;
};

/// A chrome window that is also what the other windows know it as.
template <class Role>
class ChromePanel : public ChromeWindow, public Role {
public:
    using ChromeWindow::ChromeWindow;

    Form& form() override { return *this; }
    void Pocni() override { miniClick(); }
    void SetAlarm0() override { showAlarm(); }
    void Pici() override { resetTray(); }
};

} // namespace orvalis
