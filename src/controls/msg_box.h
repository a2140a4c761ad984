// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/message_boxes.h"

namespace orvalis {

/// Message boxes on the screen. Escape answers OK where there is OK alone and Cancel where there is
/// Cancel; a Yes-No box must be answered.
class QtMessageBoxes final : public MessageBoxes {
public:
    /// \throws ProgramEnded when the program ended while the box was open.
    Answer MsgBox(const QString& text, int flags = 0, const QString& title = {}) override;
};

} // namespace orvalis
