// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

namespace orvalis::rtf {

/// The words that switch a kind of underline or of script on, or all of them off.
const char* underlineWord(Underline underline);
const char* scriptWord(Script script);

/// The whole look of characters as it is kept (see kept_text.h), which holds whatever look is
/// around it.
QString keptLook(const CharFormat& format, const Names& names);

} // namespace orvalis::rtf
