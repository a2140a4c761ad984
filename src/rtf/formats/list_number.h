// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

namespace orvalis::rtf {

/// A number as the labels of a list show it: "3", "c", "C", "iii", "III". Kinds that cannot show it
/// (letters below 1, roman numbers outside 1 to 4999) give the decimal number.
QString listNumber(ListKind kind, int number);

} // namespace orvalis::rtf
