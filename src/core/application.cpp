// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/application.h"

#include "controls/message_boxes.h"
#include "core/recovery.h"
#include "runtime/failure.h"
#include "runtime/program_end.h"

#include <QEvent>
#include <QScopedValueRollback>

namespace orvalis {

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv) {
    // The program lives on with all windows hidden; it ends by its own rules alone.
    setQuitOnLastWindowClosed(false);
}

template <class Block>
bool Application::guarded(const Block& block) {
    try {
        return block();
    } catch (const ProgramEnded&) {
        leave();
    } catch (const RuntimeError& failure) {
        tell(failure);
    }
    return false;
}

int Application::run(const std::function<void()>& entry) {
    guarded([&entry] {
        entry();
        return true;
    });
    return programHasEnded() ? 0 : exec();
}

bool Application::notify(QObject* receiver, QEvent* event) {
    return guarded([&] { return QApplication::notify(receiver, event); });
}

void Application::tell(const RuntimeError& failure) {
    // The program is at its end already while the first failure's box is up; timers that fail
    // behind it are part of the same end.
    if (m_failing || programHasEnded())
        return;
    const QScopedValueRollback failing(m_failing, true);
    // Ahead of the box, which may stand for long and see the desktop go.
    keepUnsaved();
    Q_ASSERT(m_boxes != nullptr);
    try {
        m_boxes->MsgBox(QStringLiteral("Run-time error '%1':\n\n%2")
                            .arg(static_cast<int>(failure.number()))
                            .arg(failure.description()),
                        MsgFlags::StopIcon);
    } catch (const ProgramEnded&) { // it ends here in any case
    }
    leave();
}

bool Application::event(QEvent* event) {
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    // The desktop's session ends, or its menu says so.
    endFromOutside();
    return true;
}

void Application::endFromOutside() {
    keepUnsaved();
    leave();
}

void Application::keepUnsaved() {
    if (m_recovery != nullptr && !programHasEnded())
        m_recovery->keep();
}

void Application::leave() {
    markProgramEnded();
    exit(0);
}

} // namespace orvalis
