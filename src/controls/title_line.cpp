// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/title_line.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace orvalis {
namespace {

class FocusWatch final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusOut && leaves(static_cast<QFocusEvent&>(*event))) {
            // A line that goes with the focus in it is one no more when it tells of that.
            if (auto* line = qobject_cast<QLineEdit*>(watched))
                line->setCursorPosition(0);
        }
        return false;
    }

private:
    /// Behind a box, a menu or another program the user finds the line as it was.
    static bool leaves(const QFocusEvent& event) {
        return event.reason() != Qt::ActiveWindowFocusReason &&
               event.reason() != Qt::PopupFocusReason;
    }
};

} // namespace

void showBeginningWhenLeft(QLineEdit& line) {
    line.installEventFilter(new FocusWatch(&line));
}

} // namespace orvalis
