// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/picture_source.h"

#include <QByteArray>
#include <QString>

namespace orvalis {

/// A picture that was read from a file.
struct LoadedPicture {
    QByteArray file;       ///< its bytes, for RichTextBox::InsertPicture()
    PictureSource picture; ///< what it shows
};

/// Reads a picture file of any kind that Qt knows, or a metafile, by what it holds and not by its
/// name. A picture of more pixels than \a mostPixels comes smaller, in the same shape.
/// \throws RuntimeError InvalidPicture when it is none that can be drawn, those of readWhole() when
/// it cannot be read.
LoadedPicture LoadPicture(const QString& path, qint64 mostPixels);
/// The same with room for everything but a very large picture.
LoadedPicture LoadPicture(const QString& path);

/// Puts a picture on the clipboard, in its own bytes too where other programs know them.
void setClipboardPicture(const LoadedPicture& picture);

} // namespace orvalis
