// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>

namespace orvalis::skin {

/// The type of the windows in a whole number of points: Arial, or its stand-in where it is missing.
QFont font(int points, bool bold = false);

/// The same font, smaller where the text would not fit into the box on one line; at least 5 points,
/// also where that does not fit. For labels of a fixed width whose text has no fixed length.
QFont fitted(const QFont& font, const QString& text, QSizeF box);

} // namespace orvalis::skin
