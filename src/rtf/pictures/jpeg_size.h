// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QSize>

namespace orvalis::rtf {

/// The size in pixels that the head of a JPEG's frame tells, whatever is wrong behind it; empty
/// where there is none.
QSize jpegSize(QByteArrayView bytes);

} // namespace orvalis::rtf
