// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>

#include <optional>

namespace orvalis {

/// While it lives, the pointer is the one of the window that it is over. Dialogs and boxes need it:
/// the work that asked for them may go on under the hourglass, but the user is to choose in them.
class OrdinaryPointer {
public:
    OrdinaryPointer();
    /// Gives the pointer back that all windows showed before.
    ~OrdinaryPointer();
    OrdinaryPointer(const OrdinaryPointer&) = delete;
    OrdinaryPointer& operator=(const OrdinaryPointer&) = delete;

private:
    std::optional<QCursor> m_before;
};

} // namespace orvalis
