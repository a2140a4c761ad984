// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace orvalis {

class PrintWindow;

/// Makes the menu `mnustampa`, which puts all contacts or the one on the panel on the print
/// window's page.
/// \param window asked for anew at each entry chosen, as it comes and goes.
QMenu* makePrintMenu(QWidget* parent, const std::function<PrintWindow&()>& window);

} // namespace orvalis
