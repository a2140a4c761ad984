// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;

namespace orvalis {

/// From now on a text that does not fit into the line shows its beginning once the user has left
/// it.
void showBeginningWhenLeft(QLineEdit& line);

} // namespace orvalis
