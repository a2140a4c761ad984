// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/rich_text_box.h"

namespace orvalis {

/// A rich text box for a text without formats: of what is pasted or dropped it takes the words
/// alone.
class PlainTextBox final : public RichTextBox {
    Q_OBJECT
public:
    using RichTextBox::RichTextBox;

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace orvalis
