// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/date_menu.h"

#include "core/roles.h"

#include <QMenu>

namespace orvalis {

using namespace Qt::StringLiterals;

QMenu* makeDateMenu(QWidget* parent, const std::function<NotesPanel&()>& notes) {
    const QString heading = u"Insert"_s;
    auto* menu = new QMenu(heading, parent);
    menu->setObjectName(u"mnudate"_s);
    menu->addSection(heading);
    const auto entry = [&](const QString& name, const QString& caption, int kind) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        QObject::connect(action, &QAction::triggered, menu, [notes, kind] { notes().Sad(kind); });
    };
    entry(u"mnuid"_s, u"&Date"_s, 1);
    entry(u"mnuit"_s, u"&Time"_s, 2);
    entry(u"mnuidt"_s, u"Date &and Time"_s, 3);
    return menu;
}

} // namespace orvalis
