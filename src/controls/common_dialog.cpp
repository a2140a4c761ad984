// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/common_dialog.h"

#include <QFileInfo>

#include <utility>

namespace orvalis {

void CommonDialog::ShowOpen() {
    takeFile(m_dialogs.openFile(takeFileRequest()));
}

void CommonDialog::ShowSave() {
    takeFile(m_dialogs.saveFile(takeFileRequest()));
}

void CommonDialog::ShowFont() {
    const FontChoice present{.italic = FontItalic,
                             .bold = FontBold,
                             .name = FontName,
                             .size = FontSize,
                             .strikethrough = FontStrikethru,
                             .underline = FontUnderline,
                             .colour = Color};
    const auto chosen = m_dialogs.chooseFont(present);
    if (!chosen) {
        cancelled();
        return;
    }
    FontItalic = chosen->italic;
    FontBold = chosen->bold;
    FontName = chosen->name;
    FontSize = chosen->size;
    FontStrikethru = chosen->strikethrough;
    FontUnderline = chosen->underline;
    Color = chosen->colour;
}

void CommonDialog::ShowColor() {
    if (const auto chosen = m_dialogs.chooseColour(Color))
        Color = *chosen;
    else
        cancelled();
}

void CommonDialog::ShowPrinter() {
    if (!m_dialogs.choosePrinter())
        cancelled();
}

void CommonDialog::cancelled() const {
    if (CancelError)
        throw RuntimeError(ErrorNumber::CancelWasSelected);
}

FileRequest CommonDialog::takeFileRequest() {
    return {.filter = Filter,
            .directory = InitDir,
            .fileName = FileName,
            .title = std::exchange(DialogTitle, {}),
            .defaultExtension = std::exchange(DefaultExt, {})};
}

void CommonDialog::takeFile(const std::optional<QString>& chosen) {
    if (!chosen) {
        cancelled();
        return;
    }
    FileName = *chosen;
    FileTitle = QFileInfo(*chosen).fileName();
}

} // namespace orvalis
