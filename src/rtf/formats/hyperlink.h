// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis::rtf {

/// Where a text leads.
struct Hyperlink {
    QString target;
    /// What its instruction says beside that, in the words of one: a tip, say, or the window in
    /// which the target opens.
    QString switches;
};

/// The link that a field's instruction tells, as `HYPERLINK "http://example.org" \l "part"` does.
/// One without a target for instructions of other kinds.
Hyperlink hyperlinkOf(QStringView instruction);

/// The instruction of a field that is the link, before it is escaped for RTF.
QString hyperlinkInstruction(const Hyperlink& link);

} // namespace orvalis::rtf
