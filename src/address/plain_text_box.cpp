// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/plain_text_box.h"

#include <QMimeData>

namespace orvalis {

bool PlainTextBox::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void PlainTextBox::insertFromMimeData(const QMimeData* source) {
    if (source == nullptr || !source->hasText())
        return;
    QMimeData words;
    words.setText(source->text());
    RichTextBox::insertFromMimeData(&words);
}

} // namespace orvalis
