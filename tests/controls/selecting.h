// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/rich_text_box.h"

namespace orvalis::test {

inline void select(RichTextBox& box, int start, int length) {
    box.SetSelStart(start);
    box.SetSelLength(length);
}

} // namespace orvalis::test
