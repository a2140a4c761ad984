// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/picture_source.h"

namespace orvalis {

/// A picture of the skin as the controls take it. Each call makes a picture with a handle of its
/// own; copies of it share the handle.
PictureSource skinPicture(const QString& name);

} // namespace orvalis
