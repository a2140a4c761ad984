// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

struct WaveSound;

/// The one function of the library that talks to the sound device: plays on the default device and
/// returns when the sound has ended, or at once when there is no device for it.
using PlayAndWait = void (*)(const WaveSound& sound);
constexpr const char* PlayAndWaitName = "orvalisPlayAndWait";

} // namespace orvalis
