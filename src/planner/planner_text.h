// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What the planner's documents are written with.

namespace orvalis::planner {

constexpr quint32 Black = 0;

inline QString lineBreak() {
    return QStringLiteral("\r\n");
}

} // namespace orvalis::planner
