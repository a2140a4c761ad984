// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/popup_menus.h"

#include "core/help_file.h"
#include "core/program.h"
#include "runtime/app.h"

#include <QCursor>
#include <QMenu>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

} // namespace

frmdel1::frmdel1(Program& program, HelpDisplay& help, const std::vector<MenuMaker>& menusOfPanels)
    : Form(u"frmdel1"_s)
    , m_program(program)
    , m_help(help) {
    makeHelpMenu();
    for (const MenuMaker& make : menusOfPanels)
        make(this);
}

QMenu* frmdel1::makeHelpMenu() {
    auto* menu = new QMenu(this);
    menu->setObjectName(u"mnuhelp"_s);
    const auto entry = [&](const QString& name, const QString& caption, auto handler) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, handler);
    };
    entry(
        u"mnuh1"_s, u"&Contents..."_s,
        [this] {
            ShowHelpFile(m_help, m_program.services.app.companion(u"orvalis.chm"_s), winId(), 0);
        });
    entry(
        u"mnuh2"_s, u"&Options..."_s,
        [this] { m_program.windows.get<OptionsWindow>().form().Show(); });
    entry(u"mnuabout"_s, u"&About..."_s, [this] { m_program.windows.get<AboutBox>().showModal(); });
    return menu;
}

void frmdel1::PopupMenu(const QString& name) {
    auto* menu = findChild<QMenu*>(name);
    Q_ASSERT(menu != nullptr);
    menu->exec(QCursor::pos());
    throwIfEnded();
}

} // namespace orvalis
