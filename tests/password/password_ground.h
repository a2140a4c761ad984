// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "password/password_panel.h"
#include "support/plain_windows.h"
#include "support/test_main.h"
#include "support/window_ground.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>

namespace orvalis::test {

/// The owner of the popup menus: holds the save menu, and writes down which menus were asked for.
class SaveMenuOwner final : public MenuLog {
public:
    SaveMenuOwner(Program& program, QStringList& shown)
        : MenuLog(shown) {
        makeSaveMenu(
            this, program.services.dialogs,
            [&program]() -> PasswordTexts& {
                return static_cast<frmnotes4&>(program.windows.get<PasswordPanel>());
            });
    }
};

/// A Password panel in a program over doubles.
class PasswordGround : public WindowGround<PasswordPanel, frmnotes4> {
public:
    PasswordGround() {
        program.windows.registerMaker<PasswordPanel>(
            [this] { return std::make_unique<frmnotes4>(program); });
        program.windows.registerMaker<PopupMenus>(
            [this] { return std::make_unique<SaveMenuOwner>(program, menus); });
    }

    RichTextBox& left() { return control<RichTextBox>(QStringLiteral("txtrt1")); }
    RichTextBox& right() { return control<RichTextBox>(QStringLiteral("txtText")); }
    QLineEdit& password() { return control<QLineEdit>(QStringLiteral("txtPW")); }
    ProgressBar& bar() { return control<ProgressBar>(QStringLiteral("PB1")); }

    void encrypt() { press(QStringLiteral("cmdCrypt(0)")); }
    void decrypt() { press(QStringLiteral("cmdCrypt(1)")); }
    /// Chooses an entry of the save menu.
    void choose(const QString& entry) {
        auto* action = program.windows.get<PopupMenus>().form().findChild<QAction*>(entry);
        if (!action)
            qFatal("no entry %s", qPrintable(entry));
        action->trigger();
    }

    QStringList menus;
};

} // namespace orvalis::test
