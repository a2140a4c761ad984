// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// The programs that start at the user's logon. Failures are silent.
class LogonEntry {
public:
    virtual ~LogonEntry() = default;
    virtual void set(const QString& name, const QString& programPath) = 0;
    virtual void remove(const QString& name) = 0;
};

} // namespace orvalis
