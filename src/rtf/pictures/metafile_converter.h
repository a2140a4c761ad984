// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>

namespace orvalis::rtf {

/// Draws vector metafiles, which needs the world outside this folder.
class MetafileConverter {
public:
    virtual ~MetafileConverter() = default;

    /// \param metafile a Windows metafile, with or without a placeable header.
    /// \param pixels the size at which it will be shown.
    /// \returns the picture, null when it could not be drawn.
    virtual QImage convert(QByteArrayView metafile, QSize pixels) = 0;
};

} // namespace orvalis::rtf
