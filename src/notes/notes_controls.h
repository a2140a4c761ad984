// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

class QCheckBox;
class QFrame;
class QLineEdit;
class QWidget;

namespace orvalis {

class GGCommand;
class Image;
class Label;
class PageToolbar;
class ProgressBar;
class RichTextBox;

/// The controls of the Notes panel beside the chrome, made on the panel in their design places. The
/// panel owns them; this only names them.
class NotesControls {
public:
    explicit NotesControls(QWidget& panel);

    // The left page, which is written on, and the right one, which shows an opened file.
    Label* Label3;
    RichTextBox* rt1;
    Label* Label1;
    RichTextBox* rt1a;
    RichTextBox* rt5; ///< hidden: the document as it was last saved or taken over
    GGCommand* Button1;

    PageToolbar* Toolbar1;
    PageToolbar* Toolbar2;

    // The commands below the pages.
    Image* imgNew;
    Image* imgSave;
    Image* imgSlika;
    Image* imgFind;
    Image* imgMail;
    Image* imgOpen;
    Image* imgPrint;
    ProgressBar* PB1; ///< hidden: how far long work on the left page is
    ProgressBar* PB2; ///< hidden: the same of the right one
    Image* ImUbaci;   ///< hidden: a picture on its way to the clipboard

    // Find and replace.
    QFrame* Frame1;
    Label* Label5;
    QLineEdit* Text1;
    Label* Label4;
    QLineEdit* Text2;
    QCheckBox* Check4;
    QCheckBox* Check3;
    GGCommand* FindButton;
    GGCommand* FindNextButton;
    GGCommand* ReplaceButton;
    GGCommand* ReplaceAllButton;
    GGCommand* Command5;

private:
    void makePages(QWidget& panel);
    void makeToolbars(QWidget& panel);
    void makeCommands(QWidget& panel);
    void makeFindFrame(QWidget& panel);
    void setTabOrder();
};

/// The buttons of the panel's toolbars by their index.
namespace Toolbar1Button {
enum Index : int {
    Left = 1,
    Center = 2,
    Right = 3,
    Bold = 5,
    Italic = 6,
    Underline = 7,
    Cut = 9,
    Copy = 10,
    Paste = 11,
    Undo = 13,
};
} // namespace Toolbar1Button

namespace Toolbar2Button {
enum Index : int {
    Font = 1,
    FontColor = 2,
    IncreaseIndent = 4,
    DecreaseIndent = 5,
    Find = 7,
    DoublePage = 9,
    SinglePage = 10,
    WordWrap = 12,
    Bullets = 14,
};
} // namespace Toolbar2Button

} // namespace orvalis
