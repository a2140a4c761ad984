// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace orvalis::rtf {

/// What a look ahead tells of an entry of an index or a table of contents.
struct EntryScan {
    QByteArray words;          ///< of the entry itself: its table, its level, how its number looks
    bool hasStructure = false; ///< paragraphs, cells or sections end in it
};

/// \param content of the entry's group, behind its first word.
EntryScan scanEntry(QByteArrayView content);

} // namespace orvalis::rtf
