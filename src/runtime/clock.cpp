// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/clock.h"

namespace orvalis {

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTime();
}

} // namespace orvalis
