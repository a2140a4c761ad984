// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/reader.h"

namespace orvalis {

/// Says who draws the vector metafiles in documents, for every rich text box of the program. It
/// outlives them; without one such pictures show as boxes.
void setMetafileConverter(rtf::MetafileConverter* converter);

/// How the rich text boxes read RTF.
rtf::ReadOptions readOptions();

} // namespace orvalis
