// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/selection_font.h"

#include "controls/common_dialog.h"
#include "controls/rich_text_box.h"

namespace orvalis {

void loadFontFromSelection(CommonDialog& dialog, const RichTextBox& box) {
    dialog.FontItalic = notNull(box.SelItalic());
    dialog.FontBold = notNull(box.SelBold());
    dialog.FontName = notNull(box.SelFontName());
    dialog.FontSize = notNull(box.SelFontSize());
    dialog.FontStrikethru = notNull(box.SelStrikeThru());
    dialog.FontUnderline = notNull(box.SelUnderline());
    dialog.Color = notNull(box.SelColor());
}

void applyFontToSelection(const CommonDialog& dialog, RichTextBox& box) {
    const RichTextBox::Batch batch(box);
    box.SetSelItalic(dialog.FontItalic);
    box.SetSelBold(dialog.FontBold);
    box.SetSelFontName(dialog.FontName);
    box.SetSelFontSize(dialog.FontSize);
    box.SetSelStrikeThru(dialog.FontStrikethru);
    box.SetSelUnderline(dialog.FontUnderline);
    box.SetSelColor(dialog.Color);
}

} // namespace orvalis
