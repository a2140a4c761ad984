// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// The target that a field's instruction names, as `HYPERLINK "http://example.org" \l "part"` does.
/// Empty for instructions of other kinds.
QString hyperlinkTarget(QStringView instruction);

/// The instruction of a field that leads to the target, before it is escaped for RTF.
QString hyperlinkInstruction(const QString& target);

} // namespace orvalis::rtf
