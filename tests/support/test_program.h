// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/application.h"
#include "core/program.h"
#include "platform/registry.h"
#include "runtime/app.h"
#include "runtime/program_end.h"
#include "support/fake_clock.h"
#include "support/memory_settings_store.h"
#include "support/recording_platform.h"
#include "support/recording_printer.h"
#include "support/scripted_boxes.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>

namespace orvalis::test {

/// A whole program over doubles: its data lies in a fresh folder, its settings in memory, its clock
/// stands still, its boxes and dialogs are answered by scripts. The windows that a test needs it
/// registers itself. Under `Application` what leaves a handler is met as in the real program.
class TestProgram {
    // In the order in which they lean on one another; the program goes first.
public:
    TestProgram() {
        // A program that ended in the test before has left its mark on the application.
        qApp->setProperty("orvalisEnded", QVariant());
        if (auto* application = qobject_cast<Application*>(qApp))
            application->setBoxes(boxes);
    }

    void setSetting(const QString& section, const QString& name, const QString& text) {
        settings.putSetting(section, name, text);
    }

    TemporaryFolder folder;
    FakeClock clock;
    MemorySettingsStore store;
    RecordingLogonEntry logonEntry;
    ScriptedBoxes boxes;
    ScriptedDialogs dialogs;
    RecordingShell shell;
    RecordingMail mail;
    RecordingSoundPlayer sound;
    FakeScreen screen;
    RecordingPrinter printer;
    App app{folder.file(QStringLiteral("orvalis")), folder.file(QStringLiteral("data")), {}};
    Registry settings{store, logonEntry};
    Program program{{.app = app,
                     .clock = clock,
                     .settings = settings,
                     .boxes = boxes,
                     .dialogs = dialogs,
                     .shell = shell,
                     .mail = mail,
                     .sound = sound,
                     .screen = screen,
                     .printer = printer}};
};

/// Whether the block ended the program.
template <class Block>
bool endsTheProgram(const Block& block) {
    try {
        block();
        return false;
    } catch (const ProgramEnded&) {
        return true;
    }
}

} // namespace orvalis::test
