// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace orvalis::rtf::dingbats {

inline constexpr int FirstCode = 0x20;

/// The signs of a font of pictures by their codes from FirstCode on, 0 where Unicode has none.
using Signs = std::array<char32_t, 256 - FirstCode>;

extern const Signs Wingdings;
extern const Signs Wingdings2;
extern const Signs Wingdings3;
extern const Signs Webdings;

} // namespace orvalis::rtf::dingbats
