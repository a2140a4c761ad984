// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis::driver {

/// Waits until the condition holds, asking again every few milliseconds. \returns whether it held
/// before the time was over.
template <class Condition>
bool waitUntil(Condition&& condition, int milliseconds);

void sleepMilliseconds(int milliseconds);

template <class Condition>
bool waitUntil(Condition&& condition, int milliseconds) {
    constexpr int Step = 20;
    for (int waited = 0; waited <= milliseconds; waited += Step) {
        if (condition())
            return true;
        sleepMilliseconds(Step);
    }
    return condition();
}

} // namespace orvalis::driver
