// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace orvalis {

/// Whether the connection to the display server has broken, as the toolkit is about to find.
/// \param warning what the toolkit says of it.
bool displayIsLost(QStringView warning);

} // namespace orvalis
