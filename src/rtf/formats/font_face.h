// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QMap>
#include <QString>

namespace orvalis::rtf {

/// What a file tells of a face beside its name, so that whoever has not got the face finds a like
/// one.
struct FontFace {
    static constexpr QByteArrayView UnknownKind = "fnil";
    static constexpr int MostPitch = 2;

    QByteArrayView kind = UnknownKind; ///< the word for it, of the table of words
    bool anyDirection = false;         ///< it has letters for text of both
    int pitch = 0;                     ///< 0 for one that nobody told, 1 for letters of one width
    QString panose;                    ///< as it is kept (see kept_text.h)
    QString alternative;               ///< the same: the name of another face

    bool operator==(const FontFace&) const = default;
};

/// By their families.
using FontFaces = QMap<QString, FontFace>;

} // namespace orvalis::rtf
