// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace orvalis {

class ChromeWindow;

/// A window's own stay in the tray: what `imgMini` and the alarm ask of it.
class TrayOwner {
public:
    virtual ~TrayOwner() = default;
    /// Makes the tray form with its menu, tool tip and icon, and hides the window.
    virtual void TrayBuild() = 0;
    /// Gives the tray its idle look back. Does nothing while this window is not in the tray.
    virtual void TrayReset() = 0;
};

/// Gives each of the five windows its tray side.
using TrayOwnerMaker = std::function<std::unique_ptr<TrayOwner>(ChromeWindow&)>;

} // namespace orvalis
