// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTime>

namespace orvalis {

/// How many clock formats there are; their indexes run from 0.
constexpr int ClockFormatCount = 13;

/// The text of a clock at the time \a now in the format \a index, "" for an index outside 0 to 12.
///
/// Each format starts from the time's long or its short text. The short one tells no seconds, so
/// formats 6 and 12 show a second field that never moves.
QString ClockText(int index, QTime now);

} // namespace orvalis
