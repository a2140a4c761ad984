// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/shape_frame.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr QLatin1StringView Word(ShapePlace.data(), ShapePlace.size());
constexpr QLatin1StringView OfPicture(PictureMark.data(), PictureMark.size());

} // namespace

ShapeFrame shapeFrame(QStringView kept) {
    ShapeFrame frame;
    qsizetype next = kept.indexOf(Word);
    frame.ahead = kept.first(std::max<qsizetype>(next, 0)).toString();
    while (next >= 0) {
        qsizetype at = next + Word.size();
        const bool isPicture = kept.sliced(at).startsWith(OfPicture);
        at += isPicture ? OfPicture.size() : 0;
        // Ahead of text the word ends with a blank of its own.
        at += at < kept.size() && kept[at] == u' ' ? 1 : 0;
        next = kept.indexOf(Word, at);
        const qsizetype end = next < 0 ? kept.size() : next;
        frame.places.push_back({isPicture, kept.sliced(at, end - at).toString()});
    }
    return frame;
}

QString withoutPlaces(QString kept) {
    kept.remove(Word + OfPicture);
    kept.remove(Word);
    return kept;
}

} // namespace orvalis::rtf
