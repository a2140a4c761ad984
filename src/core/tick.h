// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// What the tick asks of the form whose timer runs it.
class TickOwner {
public:
    virtual ~TickOwner() = default;
    /// `lblVreme` of the form.
    virtual void showClock(const QString& text) = 0;
    /// Disarms the alarm that has fired.
    virtual void disarm() = 0;
};

/// The work of each second: the alarm and the reminders.
class Tick {
public:
    virtual ~Tick() = default;
    /// \throws RuntimeError where a step fails; what that means is the owner's to say.
    virtual void run(TickOwner& owner) = 0;
};

} // namespace orvalis
