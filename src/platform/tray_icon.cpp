// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_icon.h"

#include <algorithm>

namespace orvalis {

namespace {

std::array<QChar, TrayTip::Size> field(const QString& text) {
    std::array<QChar, TrayTip::Size> characters{};
    std::copy_n(text.begin(), std::min<qsizetype>(text.size(), TrayTip::Size - 1),
                characters.begin());
    return characters;
}

} // namespace

void TrayTip::set(const QString& text) {
    m_characters = field(text);
}

QString TrayTip::text() const {
    const auto end = std::find(m_characters.begin(), m_characters.end(), QChar());
    return QString(m_characters.data(), end - m_characters.begin());
}

bool TrayTip::holds(const QString& text) const {
    return m_characters == field(text);
}

} // namespace orvalis
