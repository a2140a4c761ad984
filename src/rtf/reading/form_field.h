// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace orvalis::rtf {

/// The entry of a form's list that is chosen, or the one that is chosen at first. Empty where the
/// list has no such entry.
/// \param instruction of the field, in the spelling of what is kept (see kept_text.h).
QString chosenEntry(QByteArrayView instruction);

} // namespace orvalis::rtf
