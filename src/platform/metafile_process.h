// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/metafile_converter.h"

#include <QElapsedTimer>

namespace orvalis {

/// Draws vector metafiles with libwmf's converter in a process of its own, so that a hostile file
/// can cost neither the program's memory nor, beyond a bound, its time. Where the converter is not
/// installed, or the bound is reached, there is no picture.
class MetafileProcess final : public rtf::MetafileConverter {
public:
    QImage convert(QByteArrayView metafile, QSize pixels) override;

private:
    bool mayRun();

    QElapsedTimer m_sinceFirst; ///< Since the first conversion of the present stretch of time.
    qint64 m_spent = 0;         ///< Milliseconds spent converting within it.
};

} // namespace orvalis
