// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/windows.h"

#include <QPoint>

#include <optional>

namespace orvalis {

class Label;
class MSFlexGrid;
class RichTextBox;

/// `frmStart`: the hidden window that lives from the first moment to the last and owns the tick.
class StartWindow : public WindowRole {
public:
    /// `Timer23.Enabled`: the tick of the windowed program.
    virtual void setTimer23Enabled(bool enabled) = 0;
    virtual bool timer23Enabled() const = 0;
    /// The hidden copy of the Remind list that the tick scans.
    virtual MSFlexGrid& MS2() = 0;
};

/// What each of the five windows with the shared chrome offers to the others.
class ChromeRole : public WindowRole {
public:
    /// Does what a click on this window's `imgMini` does.
    virtual void Pocni() = 0;
    /// Shows the armed alarm in this window.
    virtual void SetAlarm0() = 0;
    /// Calls `TrayReset` while a tray form is loaded.
    virtual void Pici() = 0;
};

/// `frmnotes`
class MainWindow : public ChromeRole {};

/// `frmnotes1`
class ReminderPanel : public ChromeRole {
public:
    virtual MSFlexGrid& MS3() = 0;
    /// Saves the Priority list.
    virtual void sv1() = 0;
    /// Saves `MS3` and then `MS2`, whose content is what stays in the file.
    virtual void sv3() = 0;
    /// Writes the font of the message text to the settings.
    virtual void Sacremi() = 0;
};

/// `frmnotes2`
class NotesPanel : public ChromeRole {
public:
    /// The left page, on which notes are written.
    virtual RichTextBox& rt1() = 0;
    /// The label on the panel's upper edge below which the letters come up.
    virtual const Label& lblNot() const = 0;
    /// Prints a box in pages. The margins are in twips.
    virtual void PrintRTF(RichTextBox& RTF, int LeftMarginWidth, int TopMarginHeight,
                          int RightMarginWidth, int BottomMarginHeight) = 0;
    /// Replaces the left page's selection by today's date (1), by the time as the clock shows it
    /// (2) or by both (3).
    virtual void Sad(int Kind) = 0;
    /// Does what a click on the find frame's `FindNextButton` does.
    virtual void FindNext() = 0;
};

/// `frmnotes3`
class AddressPanel : public ChromeRole {};

/// `frmnotes4`
class PasswordPanel : public ChromeRole {};

/// `frmOptions`
class OptionsWindow : public WindowRole {
public:
    /// `Option1(0).Value`: the built-in player is chosen.
    virtual bool builtInPlayer() const = 0;
    /// `optSort(0).Value`: addresses are sorted by first name.
    virtual bool sortByFirst() const = 0;
};

/// `frmAlSet`
class AlarmSetDialog : public WindowRole {};

/// `frmAlarm`
class AlarmWindow : public WindowRole {};

/// `frmAbout`
class AboutBox : public WindowRole {
public:
    virtual void showModal() = 0;
};

/// `frmPrint`
class PrintWindow : public WindowRole {
public:
    /// The page that is written, found in and printed.
    virtual RichTextBox& rtb() = 0;
    /// Appends the contact that the address panel shows, and shows the window.
    virtual void stampa() = 0;
    /// Appends all contacts, and shows the window.
    virtual void stampaAll() = 0;
};

/// `frmFind`, which finds and replaces on the page of `frmPrint`. It is shown over that window,
/// which unloads it with itself.
class FindWindow : public WindowRole {
public:
    /// Does what a click on `FindNextButton` does.
    virtual void FindNext() = 0;
};

/// `frmpisma`, the letter templates. It is shown over the notes, and writes into their `rt1`.
class LettersWindow : public WindowRole {};

/// `frmdel1`: the hidden form that owns the popup menus.
class PopupMenus : public WindowRole {
public:
    /// Pops a menu up and holds the caller until it is closed.
    /// \param place of the screen where a key asked for the menu: the pointer is elsewhere then.
    void PopupMenu(const QString& name, std::optional<QPoint> place = {}) {
        popUpMenu(name, place);
    }

protected:
    virtual void popUpMenu(const QString& name, std::optional<QPoint> place) = 0;
};

/// One sticker window, of either class.
class StickerWindow : public WindowRole {
public:
    virtual RichTextBox& Text1() = 0;
    /// Brings the sticker up on top without taking the focus.
    virtual void popUp() = 0;
};

/// Makes stickers. They live until they are closed; the global `xn` is made again at the first
/// reference after it was closed.
class StickerMaker {
public:
    virtual ~StickerMaker() = default;
    virtual StickerWindow& newFrmstick() = 0;
    virtual StickerWindow& newXn() = 0;
    virtual StickerWindow& globalXn() = 0;
};

} // namespace orvalis
