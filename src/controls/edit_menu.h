// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QLineEdit;
class QPoint;
class QWidget;

namespace orvalis {

/// What the editing menu of a text box offers.
struct EditCommands {
    struct Entry {
        bool enabled;
        std::function<void()> run;
    };
    Entry undo;
    Entry cut;
    Entry copy;
    Entry paste;
    Entry remove;
    Entry selectAll;
};

/// Pops the editing menu up, without holding the caller. It goes when it is closed, and with the
/// box.
void popUpEditMenu(QWidget& box, const QPoint& globalPlace, const EditCommands& commands);

/// Gives a line of text the editing menu of a right click.
void giveEditMenu(QLineEdit& line);

} // namespace orvalis
