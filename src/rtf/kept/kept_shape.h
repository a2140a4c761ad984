// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace orvalis::rtf {

/// The group around a picture whose bytes nobody knows: other programs pass over it.
inline constexpr QByteArrayView StrangePicture = "orvpict";

/// A word that tells of a text in a box that it is one to show, though it has no character.
inline constexpr QByteArrayView ShownEmpty = "\\orvempty";

/// What a shape in a line begins with, as it is kept: the look of the text around it.
inline constexpr QStringView LineShapeHead = u"{\\plain";

/// Whether a group that is kept is one.
inline bool isShapeInLine(QStringView group) {
    return group.startsWith(LineShapeHead);
}

} // namespace orvalis::rtf
