// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/rich_text_box.h"
#include "core/window_keys.h"
#include "notes/notes_panel.h"
#include "notes/page_toolbar.h"
#include "notes/toolbar_state.h"
#include "widgets/gg_command.h"

#include <QFrame>
#include <QKeyEvent>
#include <QToolButton>

// The keys of the panel: those that people know from where they write, and one for each button that
// answers no key itself.

namespace orvalis {

void frmnotes2::connectKeys() {
    for (const auto& [key, picture] : {std::pair(QKeySequence(QKeySequence::New), ui.imgNew),
                                       std::pair(QKeySequence(QKeySequence::Open), ui.imgOpen),
                                       std::pair(QKeySequence(QKeySequence::Save), ui.imgSave),
                                       std::pair(QKeySequence(QKeySequence::Print), ui.imgPrint)})
        onKey(
            *this, key, [picture = picture] { picture->press(); });
    const auto toolOnKey = [this](const QKeySequence& key, const PageToolbar& toolbar, int index) {
        onKey(*this, key, [&tool = toolbar.button(index)] { tool.click(); });
    };
    toolOnKey(Qt::CTRL | Qt::Key_B, *ui.Toolbar1, Toolbar1Button::Bold);
    toolOnKey(Qt::CTRL | Qt::Key_I, *ui.Toolbar1, Toolbar1Button::Italic);
    toolOnKey(Qt::CTRL | Qt::Key_U, *ui.Toolbar1, Toolbar1Button::Underline);
    toolOnKey(Qt::CTRL | Qt::Key_D, *ui.Toolbar2, Toolbar2Button::Font);
    toolOnKey(QKeySequence::Find, *ui.Toolbar2, Toolbar2Button::Find);
    onKey(*this, Qt::Key_F5, [this] {
        showDateMenu(ui.rt1->viewport()->mapToGlobal(ui.rt1->cursorRect().bottomLeft()));
    });
    pressOnKey(*this, Qt::CTRL | Qt::Key_E, *ui.Button1);
    pressOnKey(*this, Qt::CTRL | Qt::Key_H, *ui.ReplaceButton);
    pressOnKey(*this, Qt::CTRL | Qt::SHIFT | Qt::Key_H, *ui.ReplaceAllButton);
}

void frmnotes2::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || !ui.Frame1->isVisible()) {
        ChromePanel::keyPressEvent(event);
        return;
    }
    ui.Command5->press();
    ui.rt1->setFocus(Qt::ShortcutFocusReason);
}

} // namespace orvalis
