// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_set_dialog.h"
#include "controls/msg_box.h"
#include "controls/qt_dialogs.h"
#include "core/main_window.h"
#include "core/options_dialog.h"
#include "core/program.h"
#include "core/start_window.h"
#include "core/tray_handover.h"
#include "platform/ini_settings_store.h"
#include "platform/platform.h"
#include "platform/printer.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "platform/sound_player.h"
#include "platform/tray_icon.h"
#include "runtime/app.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 21;
constexpr int Patience = 5000; // milliseconds

struct Times {
    double first;
    double median;
};

/// Whether every window that is to be seen, the icon in the tray too, stands on the screen.
bool everythingIsSeen() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::all_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return !window->isVisible() || window->testAttribute(Qt::WA_DontShowOnScreen) ||
               (window->windowHandle() != nullptr && window->windowHandle()->isExposed());
    });
}

/// What the work takes until everything it showed is seen and painted, and what undoes it in
/// between.
template <class Work, class Undo>
Times milliseconds(Work&& work, Undo&& undo) {
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        do
            QApplication::processEvents();
        while (!everythingIsSeen() && timer.elapsed() < Patience);
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        undo();
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const double first = times.front();
    std::sort(times.begin(), times.end());
    return {first, times[times.size() / 2]};
}

/// \returns whether both are below the limit.
bool tell(const char* what, const Times& times, double limit) {
    std::printf("%-34s first %7.2f ms, median %7.2f ms (limit %.0f ms)\n", what, times.first,
                times.median, limit);
    return times.first < limit && times.median < limit;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::unique_ptr<Platform> platform = makePlatform();
    QApplication application(argc, argv);
    QTemporaryDir folder;
    const App app(folder.filePath(u"orvalis"_s), folder.path(), {});
    const SystemClock clock;
    IniSettingsStore store(folder.filePath(u"orvalis.ini"_s));
    Registry settings(store, platform->logonEntry());
    QtMessageBoxes boxes;
    DesktopPrinter printer;
    QtDialogs dialogs([&printer]() -> QPrinter& { return printer.device(); });
    DeviceSoundPlayer sound;
    DesktopScreen screen;
    const std::unique_ptr<TrayIcon> tray = platform->makeTray();
    Program program({.app = app,
                     .clock = clock,
                     .settings = settings,
                     .boxes = boxes,
                     .dialogs = dialogs,
                     .shell = platform->shell(),
                     .mail = platform->mail(),
                     .sound = sound,
                     .screen = screen,
                     .printer = printer});
    Windows& windows = program.windows;
    program.makeTrayOwner = [&tray](ChromeWindow& window) {
        return std::make_unique<TrayHandover>(window, *tray);
    };
    windows.registerMaker<StartWindow>([&] { return std::make_unique<frmStart>(program, false); });
    windows.registerMaker<MainWindow>([&] { return std::make_unique<frmnotes>(program); });
    windows.registerMaker<OptionsWindow>([&] { return std::make_unique<frmOptions>(program); });
    windows.registerMaker<AlarmSetDialog>([&] { return std::make_unique<frmAlSet>(program); });
    windows.get<StartWindow>().form().Show();
    QApplication::processEvents();

    std::vector<std::unique_ptr<QWidget>> bare;
    // What the library itself takes for a window of that size.
    tell("a bare window",
         milliseconds(
             [&] {
                 bare.push_back(std::make_unique<QWidget>());
                 bare.back()->resize(246, 267);
                 bare.back()->show();
             },
             [&] { bare.clear(); }),
         50);
    bool good = tell("Options",
                     milliseconds([&] { windows.get<OptionsWindow>().form().Show(); },
                                  [&] { windows.unload<OptionsWindow>(); }),
                     50);
    good &= tell("the alarm dialog",
                 milliseconds([&] { windows.get<AlarmSetDialog>().form().Show(); },
                              [&] { windows.unload<AlarmSetDialog>(); }),
                 50);
    good &= tell("to the tray",
                 milliseconds([&] { windows.get<MainWindow>().Pocni(); },
                              [&] { emit tray->mouse(TrayMouse::LeftDoubleClick); }),
                 100);
    return good ? 0 : 1;
}
