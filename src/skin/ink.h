// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

class QWidget;

namespace orvalis::skin {

/// Gives a control's text a colour of the skin.
/// \param role WindowText for labels, Text for what is typed.
void setInk(QWidget& widget, QRgb ink, QPalette::ColorRole role = QPalette::WindowText);

} // namespace orvalis::skin
