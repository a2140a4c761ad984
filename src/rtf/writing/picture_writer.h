// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/pictures/picture.h"

namespace orvalis::rtf {

/// The groups of a picture in RTF. A small one comes twice, as itself and as a metafile for readers
/// that know only those.
QByteArray pictureGroups(const Picture& picture);

/// The group of a picture that is part of a shape; none of one that other readers could not take.
QByteArray pictureOfShape(const Picture& picture);

} // namespace orvalis::rtf
