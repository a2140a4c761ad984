// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/picture_source.h"

#include <QString>

namespace orvalis {

/// A contact's picture from a file, framed: it keeps its shape, in the middle of whatever place it
/// is drawn in.
/// \throws RuntimeError as LoadPicture() does.
PictureSource contactPhoto(const QString& path);

} // namespace orvalis
