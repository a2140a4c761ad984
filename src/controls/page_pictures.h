// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>

class QTextDocument;

namespace orvalis {

/// Makes the pictures of a document that have no room on a page as small as it needs.
/// \param page in logical pixels.
void shrinkPictures(QTextDocument& document, const QSizeF& page);

} // namespace orvalis
