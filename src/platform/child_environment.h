// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>

namespace orvalis {

/// The environment for programs that we start: the user's own, without what the program set for
/// itself.
QProcessEnvironment childEnvironment();

} // namespace orvalis
