// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// The text that the instruction of an EQ field sets, in one line: fractions with a stroke, and of
/// what is set one above the other, as the reading aid of a word is, the base alone. Empty for
/// every other instruction.
QString equationText(const QString& instruction);

} // namespace orvalis::rtf
