// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace orvalis::rtf {

/// Whether a picture has bytes, and not only words about them.
/// \param content of its group, behind the first word.
bool hasPictureBytes(QByteArrayView content);

} // namespace orvalis::rtf
