// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"
#include "notes/find_commands.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace orvalis {

class Program;

/// `frmFind`: finds and replaces on the page of `frmPrint`. It goes the same steps as the find
/// frame of the Notes panel, in a state of its own, and keeps its Find Next where that one's Next
/// is disabled.
class frmFind final : public Form, public FindWindow {
public:
    explicit frmFind(Program& program);

    Form& form() override { return *this; }
    void FindNext() override;

protected:
    void onLoad() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeControls();
    void connectControls();
    RichTextBox& rtb() const;
    FindRequest request() const;
    void enableReplacing(bool enabled);
    void tellMiss();
    void FindButton_Click();
    void FindNextButton_Click();
    void ReplaceButton_Click();
    void ReplaceAllButton_Click();
    void focusPage();

    Program& m_program;
    FindCommands m_find;
    QLineEdit* m_Text1;
    QLineEdit* m_Text2;
    QCheckBox* m_Check1; ///< case
    QCheckBox* m_Check2; ///< whole word
    QPushButton* m_FindButton;
    QPushButton* m_FindNextButton;
    QPushButton* m_ReplaceButton;
    QPushButton* m_ReplaceAllButton;
    QPushButton* m_Command5;
};

} // namespace orvalis
