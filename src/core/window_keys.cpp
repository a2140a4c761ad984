// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/window_keys.h"

#include "widgets/gg_command.h"

#include <QKeyEvent>
#include <QShortcut>

namespace orvalis {

void onKey(QWidget& window, const QKeySequence& key, const std::function<void()>& command) {
    auto* shortcut = new QShortcut(key, &window);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &window, command);
}

void pressOnKey(QWidget& window, const QKeySequence& key, GGCommand& button) {
    onKey(
        window, key,
        [&button] {
            if (button.isVisible())
                button.press();
        });
}

bool isEnter(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace orvalis
