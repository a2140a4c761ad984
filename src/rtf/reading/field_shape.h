// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace orvalis::rtf {

/// The shape that is all a field shows, as a drawing in a line is stored: what stands behind the
/// word of its group, up to the brace. Null for a field that shows anything else, or that tells of
/// the document beside it.
/// \param content of the field's group, behind its first word.
QByteArrayView shapeOfField(QByteArrayView content);

} // namespace orvalis::rtf
