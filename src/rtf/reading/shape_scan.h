// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace orvalis::rtf {

/// What a look ahead tells of a shape: what of it the text shows, and where that stands.
struct ShapeScan {
    enum class Shows {
        Nothing,
        Picture, ///< one, and nothing else
        Text,    ///< of one box, and nothing else
        More,
    };

    Shows shows = Shows::Nothing;
    /// The shape with ShapePlace for what is shown, and without its other form for old readers; the
    /// whole of a shape that shows nothing.
    QByteArray frame;
};

/// A word that stands for what a shape shows in what is kept of it.
inline constexpr QByteArrayView ShapePlace = "\\orvshown";

/// A word that tells of a text in a box that it is one to show, though it has no character.
inline constexpr QByteArrayView ShownEmpty = "\\orvempty";

/// \param content of the shape's group, behind its first word.
ShapeScan scanShape(QByteArrayView content);

} // namespace orvalis::rtf
