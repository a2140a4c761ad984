// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <optional>

namespace orvalis {

/// The value of "Xft.dpi" in an X resource database, empty where it holds none.
std::optional<double> resolutionOfResources(QByteArrayView resources);

/// The value of "Xft/DPI" in the settings that a desktop publishes to its X11 clients.
std::optional<double> resolutionOfSettings(QByteArrayView settings);

} // namespace orvalis
