// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// Takes one word off the front of a field's instruction: what stands in quotes, or up to the next
/// blank. Inside quotes a backslash stands before a quote or another backslash.
QString takeFieldWord(QStringView& instruction);

} // namespace orvalis::rtf
