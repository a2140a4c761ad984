// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <span>

namespace orvalis {

/// One node of the tree of topics. A node holds nothing but these: what leads from a leaf to its
/// texts is its caption.
struct TemplateNode {
    QStringView key; ///< of a group; a leaf has none
    QStringView caption;
    QStringView parent; ///< key of the group that it hangs on; the root hangs on none
};

/// All nodes in the order in which they come into the tree. The six groups are nested like a
/// staircase, and the leaves of each come ahead of the next group. One leaf stands there twice.
std::span<const TemplateNode> templateTree();

} // namespace orvalis
