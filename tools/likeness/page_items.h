// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "pdf_words.h"

namespace orvalis::likeness {

/// What looks like an item of a list on a page: a line that begins with a number or letter and its
/// sign.
struct PageItem {
    Word label;
    QString text; ///< the word behind the label
};

QList<PageItem> itemsOf(QList<Word> words);

} // namespace orvalis::likeness
