// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "skin/palette.h"

#include <QString>

namespace orvalis {

class GGCommand;

/// Gives a skinned button the colours and the edge of a look.
void wearLook(GGCommand& button, const skin::ButtonLook& look);

/// Puts a small picture of the skin at the left of a button's face, and its caption in the middle
/// of what is left.
void wearPicture(GGCommand& button, const QString& picture);

} // namespace orvalis
