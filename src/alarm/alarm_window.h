// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"

class QMenuBar;

namespace orvalis {

class Image;

/// `frmAlarm`: the window of the built-in player. It shows a picture under a menu bar whose entries
/// do nothing: choosing this player gives an alarm that opens a silent window.
class frmAlarm final : public Form, public AlarmWindow {
    Q_OBJECT
public:
    frmAlarm();

    Form& form() override { return *this; }

private:
    void makeMenus();

    QMenuBar* m_menuBar;
    Image* m_Image1;
};

} // namespace orvalis
