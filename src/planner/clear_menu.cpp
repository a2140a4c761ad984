// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/clear_menu.h"

#include <QMenu>

namespace orvalis {

using namespace Qt::StringLiterals;

QMenu* makeClearMenu(QWidget* parent, const std::function<ClearCommands&()>& commands) {
    auto* menu = new QMenu(u"Brisi"_s, parent);
    menu->setObjectName(u"mnibrisi"_s);
    const auto entry = [&](const QString& name, const QString& caption,
                           void (ClearCommands::*command)()) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        action->setEnabled(command != nullptr);
        if (command)
            QObject::connect(action, &QAction::triggered, menu,
                             [commands, command] { (commands().*command)(); });
    };
    entry(u"mnusamo"_s, u"Clear To-Do &Selection"_s, &ClearCommands::mnusamo);
    entry(u"mnusve"_s, u"Clear To-Do &List"_s, &ClearCommands::mnusve);
    entry(u"mnuc01"_s, u"Clear List &Selection"_s, nullptr);
    entry(u"mnuc02"_s, u"Clear &List"_s, nullptr);
    menu->addSeparator();
    entry(u"mnuclpr1"_s, u"Clear Selected &Priority"_s, &ClearCommands::mnuclpr1);
    entry(u"mnuclpr2"_s, u"Clear &All Priorities"_s, &ClearCommands::mnuclpr2);
    menu->addSeparator();
    entry(u"mnuclr1"_s, u"Clear Selected &Reminder"_s, &ClearCommands::mnuclr1);
    entry(u"mnuclr2"_s, u"Clear All Re&minders"_s, &ClearCommands::mnuclr2);
    return menu;
}

} // namespace orvalis
