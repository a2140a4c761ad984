// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/popup_menus.h"

#include "controls/clickable_label.h"
#include "core/help_file.h"
#include "core/program.h"
#include "runtime/app.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

/// Where a menu opens: at the pointer, or below the picture whose key asked for it. Such a picture
/// has the focus by the keyboard alone; another one may be under the pointer meanwhile.
QPoint menuPlace() {
    const QWidget* focused = QApplication::focusWidget();
    const bool byKey = qobject_cast<const ClickableLabel*>(focused) != nullptr &&
                       QGuiApplication::mouseButtons() == Qt::NoButton && !focused->underMouse();
    return byKey ? focused->mapToGlobal(QPoint(0, focused->height())) : QCursor::pos();
}

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

void frmdel1::popUpMenu(const QString& name, std::optional<QPoint> place) {
    auto* menu = findChild<QMenu*>(name);
    Q_ASSERT(menu != nullptr);
    menu->exec(place.value_or(menuPlace()));
    throwIfEnded();
}

} // namespace orvalis
