// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// The sign that the instruction of a SYMBOL field sets: the character with a code in a font. Empty
/// for every other instruction.
QString symbolFieldText(const QString& instruction);

} // namespace orvalis::rtf
