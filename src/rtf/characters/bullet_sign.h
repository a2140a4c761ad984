// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/symbol_font.h"

#include <QString>

namespace orvalis::rtf {

/// The sign of a bullet, as a character that most fonts have.
/// \param label of the bullet, as its file has it.
/// \param font with signs in which the file shows it, where it is one of these.
/// \returns an empty text for the usual dot, which also stands for what few fonts have, and for
/// labels that are no single sign.
QString bulletSign(const QString& label, SymbolFont font);

} // namespace orvalis::rtf
