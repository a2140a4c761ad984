// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace orvalis::rtf {

/// A word that stands for what a shape shows in what is kept of it.
inline constexpr QByteArrayView ShapePlace = "\\orvshown";

/// A word that tells of a text in a box that it is one to show, though it has no character.
inline constexpr QByteArrayView ShownEmpty = "\\orvempty";

/// What the group of a formula begins with, as it is kept.
inline constexpr const char* FormulaHead = "{\\mmath";

} // namespace orvalis::rtf
