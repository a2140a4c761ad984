// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"

#include <functional>
#include <vector>

class QMenu;

namespace orvalis {

class HelpDisplay;
class Program;

/// Makes a menu with its entries and what they do. Its objectName is the menu's name.
using MenuMaker = std::function<QMenu*(QWidget* parent)>;

/// The hidden form that owns the popup menus: the help menu of the five windows, and those that the
/// panels hand to it.
class frmdel1 final : public Form, public PopupMenus {
    Q_OBJECT
public:
    /// \param menusOfPanels the further menus; they are made with the form.
    frmdel1(Program& program, HelpDisplay& help, const std::vector<MenuMaker>& menusOfPanels = {});

    Form& form() override { return *this; }

protected:
    void popUpMenu(const QString& name, std::optional<QPoint> place) override;

private:
    QMenu* makeHelpMenu();

    Program& m_program;
    HelpDisplay& m_help;
};

} // namespace orvalis
