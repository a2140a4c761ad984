// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/selection_font.h"

#include "controls/common_dialog.h"
#include "controls/rich_text_box.h"

namespace orvalis {

namespace {

/// Which of the properties a selection had none of, since it is mixed.
struct Unread {
    bool italic = false;
    bool bold = false;
    bool name = false;
    bool size = false;
    bool strikethrough = false;
    bool underline = false;
    bool colour = false;
};

template <class T>
bool failedToRead(T& property, const std::optional<T>& value) {
    if (value)
        property = *value;
    return !value;
}

Unread loadWhatCanBeRead(CommonDialog& dialog, const RichTextBox& box) {
    return {.italic = failedToRead(dialog.FontItalic, box.SelItalic()),
            .bold = failedToRead(dialog.FontBold, box.SelBold()),
            .name = failedToRead(dialog.FontName, box.SelFontName()),
            .size = failedToRead(dialog.FontSize, box.SelFontSize()),
            .strikethrough = failedToRead(dialog.FontStrikethru, box.SelStrikeThru()),
            .underline = failedToRead(dialog.FontUnderline, box.SelUnderline()),
            .colour = failedToRead(dialog.Color, box.SelColor())};
}

void showFont(CommonDialog& dialog) {
    dialog.Flags = FontDialogFlags;
    dialog.ShowFont();
}

} // namespace

bool chooseFontOfSelection(CommonDialog& dialog, RichTextBox& box) {
    dialog.CancelError = true;
    const auto failure = firstFailure([&] {
        loadFontFromSelection(dialog, box);
        showFont(dialog);
        applyFontToSelection(dialog, box);
    });
    if (failure && failure->number() == ErrorNumber::InvalidUseOfNull)
        endSilently([&] { showFont(dialog); });
    return !failure;
}

void chooseFontPassingOver(CommonDialog& dialog, RichTextBox& box) {
    dialog.CancelError = true;
    const Unread unread = loadWhatCanBeRead(dialog, box);
    const CommonDialog before = dialog;
    resumeNext([&] { showFont(dialog); });
    const RichTextBox::Batch batch(box);
    const auto writeBack = [](bool skip, const auto& write) {
        if (!skip)
            resumeNext(write);
    };
    writeBack(
        unread.italic && dialog.FontItalic == before.FontItalic,
        [&] { box.SetSelItalic(dialog.FontItalic); });
    writeBack(
        unread.bold && dialog.FontBold == before.FontBold,
        [&] { box.SetSelBold(dialog.FontBold); });
    writeBack(
        unread.name && dialog.FontName == before.FontName,
        [&] { box.SetSelFontName(dialog.FontName); });
    writeBack(
        unread.size && dialog.FontSize == before.FontSize,
        [&] { box.SetSelFontSize(dialog.FontSize); });
    writeBack(
        unread.strikethrough && dialog.FontStrikethru == before.FontStrikethru,
        [&] { box.SetSelStrikeThru(dialog.FontStrikethru); });
    writeBack(
        unread.underline && dialog.FontUnderline == before.FontUnderline,
        [&] { box.SetSelUnderline(dialog.FontUnderline); });
    writeBack(unread.colour && dialog.Color == before.Color,
              [&] { box.SetSelColor(dialog.Color); });
}

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
