// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace orvalis {

/// The beginning of a page that can be read in little time; mostly all of it.
///
/// Qt's reader of HTML looks at all elements that are open, and at all rules of the style sheets,
/// for each tag. What people copy holds some ten thousand tags in some tens of elements each.
QStringView htmlWithinBounds(QStringView html);

} // namespace orvalis
