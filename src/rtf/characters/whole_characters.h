// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace orvalis::rtf {

/// The text with the sign for what is no character in place of each half of one.
inline QString wholeCharacters(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                             characters.size());
}

} // namespace orvalis::rtf
