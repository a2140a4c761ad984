// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/tick.h"

namespace orvalis {

class Program;

/// The work of each second: shows the time in the owner's label, fires the alarm in its second and
/// scans for reminders while any are pending.
class AlarmTick final : public Tick {
public:
    explicit AlarmTick(Program& program)
        : m_program(program) {}

    void run(TickOwner& owner) override;

private:
    void fire(TickOwner& owner);
    void notify();

    Program& m_program;
};

} // namespace orvalis
