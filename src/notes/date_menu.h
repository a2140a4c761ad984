// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace orvalis {

class NotesPanel;

/// Makes the menu `mnudate`, which writes the date or the time into the notes.
/// \param notes asked for anew at each entry chosen, as the panel comes and goes.
QMenu* makeDateMenu(QWidget* parent, const std::function<NotesPanel&()>& notes);

} // namespace orvalis
