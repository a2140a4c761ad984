// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/print_menu.h"

#include "core/roles.h"

#include <QMenu>

namespace orvalis {

using namespace Qt::StringLiterals;

QMenu* makePrintMenu(QWidget* parent, const std::function<PrintWindow&()>& window) {
    auto* menu = new QMenu(parent);
    menu->setObjectName(u"mnustampa"_s);
    const auto entry = [&](const QString& name, const QString& caption,
                           void (PrintWindow::*command)()) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        QObject::connect(action, &QAction::triggered, menu,
                         [window, command] { (window().*command)(); });
    };
    entry(u"mnup1"_s, u"Print &All"_s, &PrintWindow::stampaAll);
    entry(u"mnup2"_s, u"Print &Current"_s, &PrintWindow::stampa);
    return menu;
}

} // namespace orvalis
