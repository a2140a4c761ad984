// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace orvalis {

/// Keeps the window above all others, from now on and without hiding it for a moment.
void SetTopMost(QWidget& form);
void ClearTopMost(QWidget& form);

} // namespace orvalis
