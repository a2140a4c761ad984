// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace orvalis::rtf {

/// Hears, while long work goes on, how much of it is done: from 0 to 1, and never less than before.
/// It is told often, each time after little work. It may paint, and must leave the documents alone.
using Progress = std::function<void(double share)>;

} // namespace orvalis::rtf
