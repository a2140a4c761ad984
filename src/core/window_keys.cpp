// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/window_keys.h"

#include "widgets/gg_command.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

namespace orvalis {

namespace {

/// Lines take keys for moving about and deleting, on some desktops Control and a letter too. The
/// keys of the window come first.
class KeysOfWindow final : public QObject {
public:
    explicit KeysOfWindow(QWidget& window)
        : QObject(&window) {
        setObjectName(Name);
    }
    static QObject& of(QWidget& window) {
        auto* keys = window.findChild<QObject*>(Name, Qt::FindDirectChildrenOnly);
        return keys != nullptr ? *keys : *new KeysOfWindow(window);
    }

    bool eventFilter(QObject* line, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride)
            return QObject::eventFilter(line, event);
        const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
        const auto keys = parent()->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly);
        const bool isOurs = std::any_of(keys.begin(), keys.end(), [&](const QShortcut* key) {
            return key->isEnabled() && key->key() == pressed;
        });
        if (isOurs)
            event->ignore();
        return isOurs;
    }

private:
    inline static const QString Name = QStringLiteral("keysOfWindow");
};

} // namespace

void onKey(QWidget& window, const QKeySequence& key, const std::function<void()>& command) {
    for (QLineEdit* line : window.findChildren<QLineEdit*>())
        line->installEventFilter(&KeysOfWindow::of(window));
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
