// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/windows.h"

namespace orvalis {

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
class NotesPanel : public ChromeRole {};

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
class PrintWindow : public WindowRole {};

/// `frmpisma`
class LettersWindow : public WindowRole {};

/// `frmdel1`: the hidden form that owns the popup menus.
class PopupMenus : public WindowRole {
public:
    /// Pops a menu up at the pointer and holds the caller until it is closed.
    virtual void PopupMenu(const QString& name) = 0;
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
