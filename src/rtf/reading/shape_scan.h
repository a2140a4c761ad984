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

/// \param content of the shape's group, behind its first word.
ShapeScan scanShape(QByteArrayView content);

} // namespace orvalis::rtf
