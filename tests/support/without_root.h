// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <unistd.h>

namespace orvalis::test {

/// While it lives, the process has the rights of an ordinary user, so that a folder without
/// permission refuses root's tests too. Files made meanwhile belong to that user.
class WithoutRoot {
public:
    WithoutRoot()
        : m_changed(geteuid() == 0 && setresuid(OrdinaryUser, OrdinaryUser, 0) == 0) {}
    ~WithoutRoot() {
        if (m_changed && setresuid(0, 0, 0) != 0)
            qFatal("root could not be taken back");
    }
    WithoutRoot(const WithoutRoot&) = delete;
    WithoutRoot& operator=(const WithoutRoot&) = delete;

private:
    static constexpr uid_t OrdinaryUser = 65534;

    bool m_changed;
};

} // namespace orvalis::test
