// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>

namespace orvalis::rtf {

/// What stands in kept RTF for the number of a font, a colour or a list: what is kept has no
/// characters of its own below a blank.
inline constexpr QChar PlaceStart(0x1);
inline constexpr QChar PlaceEnd(0x2);
// What the number is of, behind the start.
inline constexpr QChar FontPlace = u'f';
inline constexpr QChar ColorPlace = u'c';
inline constexpr QChar ListPlace = u'l';
// In the place of a list, for the places in what is kept of it.
inline constexpr QChar InnerStart(0x4);
inline constexpr QChar InnerEnd(0x5);
inline constexpr QChar OverrideStart(0x6);

} // namespace orvalis::rtf
