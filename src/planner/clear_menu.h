// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace orvalis {

/// The commands that clear: each goes by the name of its menu entry.
class ClearCommands {
public:
    virtual ~ClearCommands() = default;
    /// The selected text of the to-do document.
    virtual void mnusamo() = 0;
    /// The to-do document.
    virtual void mnusve() = 0;
    /// An item of the Priority list.
    virtual void mnuclpr1() = 0;
    /// The Priority list.
    virtual void mnuclpr2() = 0;
    /// An item of the Remind list and one of its hidden copy.
    virtual void mnuclr1() = 0;
    /// The Remind list and its hidden copy.
    virtual void mnuclr2() = 0;
};

/// Makes the clear menu `mnibrisi`. Its two entries for lists have no command and are greyed.
/// \param commands asked for anew at each entry chosen, as their window comes and goes.
QMenu* makeClearMenu(QWidget* parent, const std::function<ClearCommands&()>& commands);

} // namespace orvalis
