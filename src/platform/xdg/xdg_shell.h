// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell.h"

namespace orvalis {

/// The Shell of a free desktop: what is opened goes to xdg-open, as an argument and never through a
/// command line, so that no character of it can mean anything else.
class XdgShell final : public Shell {
public:
    bool open(const QString& documentOrAddress) override;
    void start(const QString& program) override;
};

} // namespace orvalis
