// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "notes/document_rules.h"
#include "notes/notes_panel.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QShortcut>

// The find frame. Its commands have no policy: a position beyond 32767 ends the program.

namespace orvalis {

using namespace Qt::StringLiterals;

void frmnotes2::connectFind() {
    connect(ui.Text1, &QLineEdit::textChanged, this, [this] { enableFurtherSteps(false); });
    connect(ui.Text1, &QLineEdit::returnPressed, this, &frmnotes2::FindButton_Click);
    connect(ui.FindButton, &GGCommand::Click, this, &frmnotes2::FindButton_Click);
    connect(ui.FindNextButton, &GGCommand::Click, this, &frmnotes2::FindNextButton_Click);
    connect(ui.ReplaceButton, &GGCommand::Click, this, &frmnotes2::ReplaceButton_Click);
    connect(ui.ReplaceAllButton, &GGCommand::Click, this, &frmnotes2::ReplaceAllButton_Click);
    connect(ui.Command5, &GGCommand::Click, ui.Frame1, &QFrame::hide);
    // Whether the button is enabled or not.
    for (QWidget* control : std::initializer_list<QWidget*>{ui.rt1, ui.Text1, ui.Text2})
        connect(new QShortcut(Qt::Key_F3, control, nullptr, nullptr, Qt::WidgetShortcut),
                &QShortcut::activated, this, &frmnotes2::FindNextButton_Click);
}

void frmnotes2::showFindFrame() {
    enableFurtherSteps(false);
    ui.Text1->setText(firstLine(ui.rt1->SelText()));
    ui.Text2->clear();
    ui.Frame1->show();
    ui.Frame1->raise();
    ui.Text1->setFocus();
    ui.Text1->selectAll();
}

FindRequest frmnotes2::findRequest() const {
    return {.text = ui.Text1->text(),
            .replacement = ui.Text2->text(),
            .wholeWord = ui.Check3->isChecked(),
            .matchCase = ui.Check4->isChecked()};
}

void frmnotes2::enableFurtherSteps(bool enabled) {
    for (GGCommand* button : {ui.ReplaceButton, ui.ReplaceAllButton, ui.FindNextButton})
        button->setEnabled(enabled);
}

void frmnotes2::tellMiss() {
    program().boxes().MsgBox(u"String not found."_s);
    enableFurtherSteps(false);
}

void frmnotes2::FindButton_Click() {
    if (!m_find.find(*ui.rt1, findRequest())) {
        tellMiss();
        return;
    }
    enableFurtherSteps(true);
    ui.rt1->setFocus();
}

void frmnotes2::FindNextButton_Click() {
    if (m_find.findNext(*ui.rt1, findRequest()))
        ui.rt1->setFocus();
    else
        tellMiss();
}

void frmnotes2::ReplaceButton_Click() {
    if (!m_find.replace(*ui.rt1, findRequest()))
        tellMiss();
}

void frmnotes2::ReplaceAllButton_Click() {
    m_find.replaceAll(*ui.rt1, findRequest());
    enableFurtherSteps(false);
    program().boxes().MsgBox(u"Replacing done."_s);
}

void frmnotes2::FindNext() {
    FindNextButton_Click();
}

} // namespace orvalis
