// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QTextDocument;

namespace orvalis {

/// Sets small capitals as capitals of four fifths of the size, which word processors do; the layout
/// makes them smaller by itself. The text stays as it is.
void setSmallCapitals(QTextDocument& document);

} // namespace orvalis
