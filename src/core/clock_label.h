// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/label.h"

namespace orvalis {

/// A label for the time, which is also hovered for the date: a text too long for it is drawn
/// smaller, so that no format and no date is cut off. Its font stays what it was set to.
class ClockLabel final : public Label {
    Q_OBJECT
public:
    ClockLabel(const QString& name, QWidget* parent);

    /// Takes the clock font "Digital SF" where the machine has it, and otherwise Arial, in the
    /// weight that the label has.
    void useClockFont(int points);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orvalis
