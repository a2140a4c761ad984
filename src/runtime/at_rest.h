// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QObject;

namespace orvalis {

/// Deletes a window, or whatever else events may take away, once no handler of it can be on the
/// stack any more: when the outermost event loop turns, and not in the loop of a menu, a box, a
/// dialog or a drag that one of its handlers is held by.
///
/// Whatever a handler may survive its own window by goes this way. What lives on such a handler's
/// stack may then be a child of the window.
/// \param keeper deletes it with itself at the latest.
void deleteAtRest(std::shared_ptr<void> object, QObject& keeper);

} // namespace orvalis
