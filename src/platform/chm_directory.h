// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace orvalis {

/// Where one file lies inside a compiled help file.
struct ChmEntry {
    QByteArray path; ///< Begins with "/" for what the help's author put in.
    quint64 section = 0;
    quint64 offset = 0;
    quint64 length = 0;
};

/// Reads the directory of a compiled help file from its bytes and looks into its structure, so that
/// nothing behind it is led in circles or past the end by a damaged file.
/// \returns the entries, or nothing where the bytes are not a whole compiled help file.
std::optional<QList<ChmEntry>> readChmDirectory(const QByteArray& bytes);

} // namespace orvalis
