// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/roles.h"
#include "letters/catalogue.h"

#include <array>

class QRadioButton;

namespace orvalis {

class Program;
class RichTextBox;
class TreeView;

/// `frmpisma`, the window of stock letters beside the Notes panel: a tree of topics, a preview, and
/// three options for what is shown of the chosen topic. What is selected in the preview can be put
/// into the note.
class frmpisma final : public Form, public LettersWindow {
    Q_OBJECT
public:
    explicit frmpisma(Program& program);

    Form& form() override { return *this; }

protected:
    void onLoad() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeTree();
    void makeOptions();
    void makePreview();
    void makeButtons();
    NotesPanel& notes() const;
    void standBesidePanel();
    void takeFontNameOfNotes();
    void takeFontSizeOfNotes();
    void nodeClick();
    void optLetClick(TemplateKind kind);
    void insertClick();
    void beginPreview();
    void ShowLetter();
    void ShowSentences();
    void ShowPhrases();
    void showText(TemplateKind kind);
    void writeInPieces(const QString& text);

    Program& m_program;
    TreeView* m_TV1 = nullptr;
    std::array<QRadioButton*, 3> m_optLet = {};
    RichTextBox* m_rtp = nullptr;
};

} // namespace orvalis
