// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace orvalis::rtf {

/// A word that stands for what a shape shows in what is kept of it.
inline constexpr QByteArrayView ShapePlace = "\\orvshown";

/// What that word ends with where it stands for a picture among several things.
inline constexpr QByteArrayView PictureMark = "picture";

/// A shape as it is kept, in parts: what stands ahead of all that it shows, and behind each.
struct ShapeFrame {
    struct Place {
        bool isPicture = false; ///< among several things
        QString behind;
    };

    QString ahead; ///< nothing of what shows nothing
    std::vector<Place> places;

    bool has(int place) const { return place >= 0 && place < int(places.size()); }
    bool isPicture(int place) const { return has(place) && places[size_t(place)].isPicture; }
};

/// \param kept of a shape, with words that stand for what it shows.
ShapeFrame shapeFrame(QStringView kept);

/// The same without those words: of a shape that shows nothing after all.
QString withoutPlaces(QString kept);

} // namespace orvalis::rtf
