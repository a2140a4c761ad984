// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// What to hand to the desktop for a text: an address as it stands, a document by its absolute
/// path, and "http://" ahead of an address without a scheme. Empty for a document that is not
/// there.
QString openingTarget(const QString& documentOrAddress);

} // namespace orvalis
