// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

namespace orvalis::rtf {

/// What a look ahead tells of a shape: what of it the text shows, and where that stands.
struct ShapeScan {
    enum class Shows {
        Nothing,
        Picture, ///< one, and nothing else
        Boxes,   ///< texts, perhaps pictures beside them, or several pictures; nothing else
        More,
    };

    Shows shows = Shows::Nothing;
    /// The shape with a word for each thing that it shows (see kept_shape.h), and without its other
    /// form for old readers; the whole of a shape that shows nothing.
    QByteArray frame;
    /// Where these stand: behind the word of the group that each is, in bytes of the content.
    std::vector<qsizetype> places;
};

/// \param content of the shape's group, behind its first word.
ShapeScan scanShape(QByteArrayView content);

/// What a property of a shape is called.
/// \param content of the group of its name, behind the first word.
QByteArray shapePropertyName(QByteArrayView content);

} // namespace orvalis::rtf
