// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <functional>

namespace orvalis {

class MessageBoxes;
class Recovery;
class RuntimeError;

/// The application object: runs the event loop and meets what leaves a handler. A failure without a
/// policy is told in a box and ends the program; the end of the program leaves every event loop.
class Application : public QApplication {
    Q_OBJECT
public:
    Application(int& argc, char** argv);

    /// Where a failure that no handler met is told. Must be set before the first event.
    void setBoxes(MessageBoxes& boxes) { m_boxes = &boxes; }

    /// What is to be kept when a failure ends the program. Null for nothing.
    void setRecovery(Recovery* recovery) { m_recovery = recovery; }

    /// Ends the program from outside its handlers: what is unsaved is kept, no window is asked, and
    /// every event loop is left.
    void endFromOutside();

    /// Runs the entry routine, then the event loop until the program ends.
    int run(const std::function<void()>& entry);

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    /// \returns what the block returned, false where it failed.
    template <class Block>
    bool guarded(const Block& block);
    void tell(const RuntimeError& failure);
    void keepUnsaved();
    void leave();

    MessageBoxes* m_boxes = nullptr;
    Recovery* m_recovery = nullptr;
    bool m_failing = false;
};

} // namespace orvalis
