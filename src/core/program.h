// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/recovery.h"
#include "core/roles.h"
#include "core/state.h"
#include "core/tick.h"
#include "core/tray_owner.h"
#include "core/windows.h"
#include "runtime/clock.h"
#include "runtime/program_end.h"

namespace orvalis {

class App;
class Dialogs;
class Mail;
class MessageBoxes;
class Printer;
class Registry;
class Screen;
class Shell;
class SoundPlayer;
class WindowCutter;

/// The world outside, as far as the program asks anything of it. main.cpp puts the real one in, a
/// test its doubles.
struct Services {
    const App& app;
    const Clock& clock;
    Registry& settings;
    MessageBoxes& boxes;
    Dialogs& dialogs;
    Shell& shell;
    Mail& mail;
    SoundPlayer& sound;
    Screen& screen;
    Printer& printer;
    WindowCutter* windowCutter = nullptr;
};

/// The running program as every window is given it: the outside world, the shared state, the
/// registry of windows, and the way out.
class Program {
public:
    explicit Program(const Services& outside)
        : services(outside)
        , recovery(outside.app, outside.clock) {}

    Services services;
    SharedState state;
    /// What the windows hold that no file has.
    Recovery recovery;
    Windows windows;
    /// Set by main.cpp once the sticker windows are there.
    StickerMaker* stickers = nullptr;
    /// The work of each second; set by main.cpp.
    Tick* tick = nullptr;
    /// Gives a window its tray side; without it `imgMini` leaves the window as it is.
    TrayOwnerMaker makeTrayOwner;

    MessageBoxes& boxes() const { return services.boxes; }

    /// `ExitProgram`: unloads panels and side windows in their fixed order, then ends the program.
    /// Does not return.
    [[noreturn]] void ExitProgram();
    /// The end statement: no unload handler runs. Does not return.
    [[noreturn]] void end();
};

} // namespace orvalis
