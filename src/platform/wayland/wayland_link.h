// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace orvalis {

/// Whether a warning of the toolkit tells that its connection to the compositor has broken: it
/// hands that connection to nobody before its version 6.5.
bool tellsOfLostCompositor(QStringView warning);

} // namespace orvalis
