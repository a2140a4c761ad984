// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/common_dialog.h"
#include "core/chrome_window.h"
#include "core/kept_font.h"
#include "core/recovery.h"
#include "notes/find_commands.h"
#include "notes/notes_controls.h"

#include <optional>

namespace orvalis {

/// `frmnotes2`, the Notes panel, drawn as an open book: the left page is the editor, the right one
/// shows a file without letting it be changed, and a button carries the right page over to the
/// left.
class frmnotes2 final : public ChromePanel<NotesPanel> {
public:
    explicit frmnotes2(Program& program);

    // What other windows ask.
    RichTextBox& rt1() override { return *ui.rt1; }
    const Label& lblNot() const override { return *panelLabels.front(); }
    void PrintRTF(RichTextBox& RTF, int LeftMarginWidth, int TopMarginHeight, int RightMarginWidth,
                  int BottomMarginHeight) override;
    void Sad(int Kind) override;
    void FindNext() override;

    // The editing commands, which act on the active text, and what the toolbar asks of it.
    void Undo();
    void Cut();
    void Copy();
    void Paste();
    /// The text that the editing commands act on: always `rt1`.
    RichTextBox* m_ActiveText() const;
    /// The number of what the next Undo() takes back; undoKindName() has the names.
    qint32 UndoType() const;
    bool CanPaste() const;
    bool CanCopy() const;
    bool CanUndo() const;
    WId m_hWnd() const;

    /// Brings the toolbars in line with the selection.
    void AdjustButtons2();
    /// Enables the editing buttons that can do something.
    void UpdateTB();

protected:
    void onLoad() override;
    bool exitExtra() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // notes_panel.cpp
    void connectChrome();
    /// \param place of the screen where a key asked for it.
    void showDateMenu(std::optional<QPoint> place = {});
    std::vector<UnsavedText> unsavedTexts() const;

    // notes_document.cpp: what is on the pages
    void connectDocument();
    bool mayLoseChanges(int flags);
    void rt1_Change();
    void imgNew_Click();
    void imgOpen_Click();
    void Button1_Click();
    void imgSave_Click();
    std::optional<int> askWhereToSave();
    void saveAs(int flags);
    void setDocumentPath(const QString& path);

    // notes_format.cpp: toolbars
    void connectToolbars();
    void Toolbar1_ButtonClick(int index);
    void Toolbar2_ButtonClick(int index);
    void optAlign_Click(int index);
    void Image14_Click();
    void Command3_Click();
    void shiftIndent(int millimetres);
    void setPageWidth(int width, bool coversBoth);
    void resetFormat();

    // notes_find.cpp: the find frame
    void connectFind();
    void showFindFrame();
    FindRequest findRequest() const;
    void enableFurtherSteps(bool enabled);
    void tellMiss();
    void FindButton_Click();
    void FindNextButton_Click();
    void ReplaceButton_Click();
    void ReplaceAllButton_Click();

    // notes_keys.cpp
    void connectKeys();

    // notes_commands.cpp: letters, mail, pictures, printing
    void connectCommands();
    void imgFind_Click();
    void imgMail_Click();
    void imgSlika_Click();
    void imgPrint_Click();

    NotesControls ui;
    CommonDialog CommonDialog1;
    FindCommands m_find;
    KeptFont m_font;
    Recovery::Registration m_recovery;
    bool m_Changed = false; ///< the left page differs from what was last saved or taken over
};

} // namespace orvalis
