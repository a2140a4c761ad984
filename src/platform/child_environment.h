// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>

namespace orvalis {

/// Sets a variable of the environment for this program alone: those that we start are given what
/// the user's environment said.
void setForUsAlone(const char* variable, const QByteArray& value);

/// Gives the variable its user's value back.
void giveBack(const char* variable);

/// The environment for programs that we start: the user's own, without what the program set for
/// itself.
QProcessEnvironment childEnvironment();

} // namespace orvalis
