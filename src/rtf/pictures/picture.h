// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

namespace orvalis::rtf {

constexpr double TwipsPerInch = 1440;
/// Metafiles are measured in hundredths of a millimetre, 2540 to the inch.
constexpr double TwipsPerHundredthMillimetre = TwipsPerInch / 2540;

/// What the bytes of a picture are.
enum class PictureKind : int {
    Unknown,
    Png,
    Jpeg,
    Wmf,
    Emf,
    DeviceIndependent, ///< a packed DIB without a file header
    DeviceDependent,   ///< rows of pixels, described by Picture::bitmap
    MacPict,           ///< QuickDraw's own, which nothing here draws
    Os2Metafile,       ///< the Presentation Manager's own, which nothing here draws
    Other,             ///< an image file of another kind, which Qt may know
};

inline constexpr bool isMetafile(PictureKind kind) {
    return kind == PictureKind::Wmf || kind == PictureKind::Emf;
}

/// The layout of the rows of a device dependent bitmap.
struct DeviceBitmap {
    int bitsPerPixel = 1;
    int planes = 1;
    int bytesPerRow = 0;

    bool operator==(const DeviceBitmap&) const = default;
};

/// A picture as it stands in a file: its bytes, and the size that is wanted for it.
struct Picture {
    PictureKind kind = PictureKind::Unknown;
    int width = 0;      ///< of the source: pixels, or hundredths of a millimetre of a metafile
    int height = 0;     ///< as width
    int goalWidth = 0;  ///< twips, 0 when the file names none
    int goalHeight = 0; ///< twips
    int scaleX = 100;   ///< per cent of the goal
    int scaleY = 100;   ///< per cent
    int mapMode = 8;    ///< of a metafile of either system
    DeviceBitmap bitmap;
    bool hidden = false; ///< of one that a document holds: it does not show
    QByteArray bytes;
    QByteArray
        fallback;  ///< of one that a document holds: a metafile for readers that cannot draw it
    QString words; ///< what is kept of it: how it is cropped, and its properties
    QString frame; ///< of one that is a shape: what is kept of that
};

/// A size of which no side is longer than what a document can hold, in the shape it had.
QSizeF boundedTwips(QSizeF size);

/// The size in twips at which a picture wants to be shown, by the words around it or else by its
/// own head where it is a metafile; empty when it names none at all.
QSizeF wantedTwips(const Picture& picture);

/// Whether a metafile begins with the header that tells its box.
bool hasPlaceableHeader(QByteArrayView bytes);

/// What the first bytes say that a picture is, whatever the file calls it.
PictureKind kindOfBytes(QByteArrayView bytes);

} // namespace orvalis::rtf
