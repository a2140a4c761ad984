// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace orvalis::rtf {

/// What a look ahead tells of an object of another program.
struct ObjectScan {
    QByteArray frame;          ///< without what the object shows; empty where that is no part of it
    bool hasStructure = false; ///< paragraphs, cells or sections end in what it shows
};

/// \param content of the object's group, behind its first word.
ObjectScan scanObject(QByteArrayView content);

} // namespace orvalis::rtf
