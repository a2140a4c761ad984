// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>

namespace orvalis::skin {

/// The sizes of the windows' type. The layout divides them by a factor that stays so close to 1 on
/// usual screens that a whole number of points survives it.
namespace points {

/// Whatever a window says: labels, buttons, frames, fields, lists, menus, boxes. It is the size of
/// a new message too, so that what is read and what is written are of one kind.
inline constexpr int Body = 8;
inline constexpr int PanelLabel = 9; ///< the labels on a panel's upper edge
inline constexpr int Reading = 9;    ///< pages of running text
inline constexpr int ChosenTime = 10;
inline constexpr int Title = 11; ///< the title of a panel
inline constexpr int Clock = 16;

} // namespace points

/// The type of the windows in a whole number of points: Arial, or its stand-in where it is missing.
QFont font(int points, bool bold = false);

/// The same font, smaller where the text would not fit into the box on one line; at least 5 points,
/// also where that does not fit. For labels of a fixed width whose text has no fixed length.
QFont fitted(const QFont& font, const QString& text, QSizeF box);

} // namespace orvalis::skin
