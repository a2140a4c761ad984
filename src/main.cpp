// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_book.h"
#include "address/address_panel.h"
#include "address/print_menu.h"
#include "address/print_window.h"
#include "alarm/alarm_set_dialog.h"
#include "alarm/alarm_tick.h"
#include "alarm/alarm_window.h"
#include "controls/clipboard_content.h"
#include "controls/document_reading.h"
#include "controls/msg_box.h"
#include "controls/qt_dialogs.h"
#include "core/about_box.h"
#include "core/application.h"
#include "core/help_viewer.h"
#include "core/main_window.h"
#include "core/options_dialog.h"
#include "core/popup_menus.h"
#include "core/program.h"
#include "core/start_window.h"
#include "core/tray_handover.h"
#include "letters/letters_window.h"
#include "notes/date_menu.h"
#include "notes/find_window.h"
#include "notes/notes_panel.h"
#include "password/password_panel.h"
#include "planner/clear_menu.h"
#include "planner/reminder_panel.h"
#include "platform/ini_settings_store.h"
#include "platform/interface_scale.h"
#include "platform/metafile_process.h"
#include "platform/outside_end.h"
#include "platform/platform.h"
#include "platform/printer.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "platform/single_instance.h"
#include "platform/sound_player.h"
#include "platform/tray_icon.h"
#include "runtime/app.h"
#include "runtime/user_locale.h"
#include "runtime/whole_file.h"
#include "skin/style.h"
#include "stickers/stickers.h"

#include <QEvent>
#include <QIcon>
#include <QTimer>

#include <memory>
#include <vector>

using namespace orvalis;

namespace {

/// The menus that the panels hand to the form that owns all popup menus.
std::vector<MenuMaker> menusOfPanels(Program& program) {
    return {
        [&program](QWidget* parent) {
            return makeDateMenu(
                parent, [&program]() -> NotesPanel& { return program.windows.get<NotesPanel>(); });
        },
        [&program](QWidget* parent) {
            return makeClearMenu(
                parent,
                [&program]() -> ClearCommands& {
                    return static_cast<frmnotes1&>(program.windows.get<ReminderPanel>());
                });
        },
        [&program](QWidget* parent) {
            return makePrintMenu(
                parent,
                [&program]() -> PrintWindow& { return program.windows.get<PrintWindow>(); });
        },
        [&program](QWidget* parent) {
            return makeSaveMenu(
                parent, program.services.dialogs,
                [&program]() -> PasswordTexts& {
                    return static_cast<frmnotes4&>(program.windows.get<PasswordPanel>());
                });
        },
    };
}

/// Which class stands behind which role.
void registerWindows(Program& program, AddressBook& addresses, bool previousInstance,
                     HelpDisplay& help) {
    program.windows.registerMaker<StartWindow>(
        [&, previousInstance] { return std::make_unique<frmStart>(program, previousInstance); });
    program.windows.registerMaker<MainWindow>([&] { return std::make_unique<frmnotes>(program); });
    program.windows.registerMaker<ReminderPanel>(
        [&] { return std::make_unique<frmnotes1>(program); });
    program.windows.registerMaker<AddressPanel>(
        [&] { return std::make_unique<frmnotes3>(program, addresses); });
    program.windows.registerMaker<PrintWindow>([&] {
        return std::make_unique<frmPrint>(
            program, addresses,
            [&program]() -> ContactPanel& {
                return static_cast<frmnotes3&>(program.windows.get<AddressPanel>());
            });
    });
    program.windows.registerMaker<PasswordPanel>(
        [&] { return std::make_unique<frmnotes4>(program); });
    program.windows.registerMaker<NotesPanel>([&] { return std::make_unique<frmnotes2>(program); });
    program.windows.registerMaker<FindWindow>([&] { return std::make_unique<frmFind>(program); });
    program.windows.registerMaker<OptionsWindow>(
        [&] { return std::make_unique<frmOptions>(program); });
    program.windows.registerMaker<AboutBox>([&] { return std::make_unique<frmAbout>(program); });
    program.windows.registerMaker<PopupMenus>(
        [&] { return std::make_unique<frmdel1>(program, help, menusOfPanels(program)); });
    program.windows.registerMaker<AlarmSetDialog>(
        [&] { return std::make_unique<frmAlSet>(program); });
    program.windows.registerMaker<LettersWindow>(
        [&] { return std::make_unique<frmpisma>(program); });
    program.windows.registerMaker<AlarmWindow>([] { return std::make_unique<frmAlarm>(); });
}

/// Each window that is made has the icon drawn in several sizes. The first one need not wait for
/// that: the windows are given the icon a moment after one of them was painted, however long that
/// took.
class LateIcon final : public QObject {
public:
    explicit LateIcon(Application& application)
        : m_icon(Application::windowIcon()) {
        Application::setWindowIcon({});
        application.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(100, this, [this] { Application::setWindowIcon(m_icon); });
        }
        return false;
    }

private:
    QIcon m_icon;
};

/// Why nobody can tell whether the program runs already.
QString uncertainInstanceText(const App& app) {
    return QStringLiteral("%1 cannot make sure that it runs only once: no file can be written in "
                          "\"%2\" or in \"%3\", and so nothing that you enter can be saved.")
        .arg(app.EXEName(), SingleInstance::defaultFolder(), app.Path());
}

} // namespace

int main(int argc, char** argv) {
    const std::unique_ptr<Platform> platform = makePlatform();
    applyInterfaceScale(platform->primaryScreenSize());
    platform->applicationBegins();
    Application application(argc, argv);
    platform->applicationStands();
    withdrawInterfaceScale();
    Application::setApplicationName(QStringLiteral("orvalis"));
    Application::setDesktopFileName(QStringLiteral("orvalis"));
    skin::dress(application);
    const LateIcon icon(application);

    followScriptOfLocale();
    const App app = App::ofThisProcess();
    const SingleInstance instance(app.Path());
    const SystemClock clock;
    IniSettingsStore store;
    Registry settings(store, platform->logonEntry());
    QtMessageBoxes boxes;
    DesktopPrinter printer;
    QtDialogs dialogs([&printer]() -> QPrinter& { return printer.device(); });
    DeviceSoundPlayer sound;
    DesktopScreen screen;
    const std::unique_ptr<TrayIcon> tray = platform->makeTray();
    HelpWindow help(platform->shell());
    MetafileProcess metafiles;
    setMetafileConverter(&metafiles);
    setClipboardQuestion([&platform] { return platform->clipboardAnswers(); });
    guardLineFields();
    application.setBoxes(boxes);

    AddressBook addresses(app);
    Program program({.app = app,
                     .clock = clock,
                     .settings = settings,
                     .boxes = boxes,
                     .dialogs = dialogs,
                     .shell = platform->shell(),
                     .mail = platform->mail(),
                     .sound = sound,
                     .screen = screen,
                     .printer = printer,
                     .windowCutter = &platform->windowCutter()});
    AlarmTick tick(program);
    program.tick = &tick;
    Stickers stickers(program);
    program.stickers = &stickers;
    program.makeTrayOwner = [&tray](ChromeWindow& window) {
        return std::make_unique<TrayHandover>(window, *tray);
    };
    registerWindows(program, addresses, instance.PrevInstance(), help);
    if (!instance.PrevInstance())
        removeLeftovers(app.Path());
    store.removeLeftovers();
    platform->removeLeftovers();
    application.setRecovery(&program.recovery);
    const OutsideEnd outsideEnd(
        [&program] { program.recovery.keep(); }, [&application] { application.endFromOutside(); },
        [&platform](QStringView warning) { return platform->displayIsLost(warning); });
    return application.run([&] {
        if (instance.isUncertain())
            boxes.MsgBox(uncertainInstanceText(app), MsgFlags::ExclamationIcon,
                         QStringLiteral("Orvalis Warning"));
        program.windows.get<StartWindow>().form().Show();
    });
}
