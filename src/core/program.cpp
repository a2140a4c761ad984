// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/program.h"

#include "runtime/failure.h"

namespace orvalis {

void Program::ExitProgram() {
    resumeNext(
        [this] { windows.unload<ReminderPanel>(); }, [this] { windows.unload<NotesPanel>(); },
        [this] { windows.unload<AddressPanel>(); }, [this] { windows.unload<PasswordPanel>(); },
        [this] { windows.unload<AlarmWindow>(); }, [this] { windows.unload<AlarmSetDialog>(); },
        [this] { windows.unload<PrintWindow>(); }, [this] { windows.unload<LettersWindow>(); },
        [this] { windows.unload<StartWindow>(); });
    end();
}

void Program::end() {
    throw ProgramEnded();
}

} // namespace orvalis
