// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "notes/notes_panel.h"

// The editing commands. They are the text control's own.

namespace orvalis {

void frmnotes2::Undo() {
    m_ActiveText()->Undo();
}

void frmnotes2::Cut() {
    m_ActiveText()->Cut();
}

void frmnotes2::Copy() {
    m_ActiveText()->Copy();
}

void frmnotes2::Paste() {
    m_ActiveText()->Paste();
}

RichTextBox* frmnotes2::m_ActiveText() const {
    return ui.rt1;
}

qint32 frmnotes2::UndoType() const {
    return static_cast<qint32>(m_ActiveText()->UndoType());
}

bool frmnotes2::CanPaste() const {
    return m_ActiveText()->CanPaste();
}

bool frmnotes2::CanCopy() const {
    return m_ActiveText()->SelLength() >= 1;
}

bool frmnotes2::CanUndo() const {
    return m_ActiveText()->CanUndo();
}

WId frmnotes2::m_hWnd() const {
    return m_ActiveText()->effectiveWinId();
}

} // namespace orvalis
