// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QCalendarWidget;

namespace orvalis::skin {

/// Gives a calendar the colours of the skin: a head in ice with the program's arrows, quiet names
/// of the days, the chosen date on sage. It changes nothing that the calendar does.
void dressCalendar(QCalendarWidget& calendar);

} // namespace orvalis::skin
