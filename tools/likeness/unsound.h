// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/reader.h"

#include <QByteArray>
#include <QString>

namespace orvalis::likeness {

/// What is broken in a file, so that each program makes something else of it; empty for a sound
/// one.
/// \param fault that our reader met in it.
QString unsoundness(const QByteArray& rtf, rtf::Fault fault);

} // namespace orvalis::likeness
