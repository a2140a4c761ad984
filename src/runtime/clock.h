// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

namespace orvalis {

/// The one source of the present moment. All code asks it, so that a test can set the time.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present date and time in the user's zone, with milliseconds.
    virtual QDateTime now() const = 0;

    QDate date() const { return now().date(); }
    QTime time() const { return now().time(); }
};

/// The machine's own clock.
class SystemClock final : public Clock {
public:
    QDateTime now() const override;
};

} // namespace orvalis
