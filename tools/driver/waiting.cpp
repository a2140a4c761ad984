// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/waiting.h"

#include <QThread>

namespace orvalis::driver {

void sleepMilliseconds(int milliseconds) {
    QThread::msleep(static_cast<unsigned long>(milliseconds));
}

} // namespace orvalis::driver
