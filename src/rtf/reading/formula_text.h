// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace orvalis::rtf {

/// The text of a formula's parts in one line, without the properties of these parts.
/// \param kept the whole group in the spelling of what is kept.
QString formulaText(QByteArrayView kept);

} // namespace orvalis::rtf
