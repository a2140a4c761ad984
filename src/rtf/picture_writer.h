// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/picture.h"

namespace orvalis::rtf {

/// Appends a picture as RTF. A small one comes twice, as itself and as a metafile for readers that
/// know only those.
void appendPicture(QByteArray& rtf, const Picture& picture);

} // namespace orvalis::rtf
