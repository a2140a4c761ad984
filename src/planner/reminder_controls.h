// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

class QCheckBox;
class QFrame;
class QGroupBox;
class QLineEdit;
class QWidget;

namespace orvalis {

class ComboBox;
class GGCommand;
class Image;
class Label;
class MonthView;
class MSFlexGrid;
class RichTextBox;

/// The controls of the Reminder panel beside the chrome, made on the panel in their design places.
/// The panel owns them; this only names them.
class ReminderControls {
public:
    explicit ReminderControls(QWidget& panel);

    // The commands along the upper edge of the left page, the calendar and the title.
    Image* imgNew;
    Image* imgSave;
    Image* imgDel;
    Image* imgFind;
    Image* imgNot;
    MonthView* MonthView1;
    QLineEdit* txt1;

    // "Message Text"
    QGroupBox* Frame2;
    RichTextBox* rt1;
    GGCommand* Command2;
    QCheckBox* chkRemind;
    QCheckBox* chkTop;

    // "Click on calendar to set date"
    QGroupBox* Frame3;
    Label* Label8;
    Label* Label9;
    Label* Label3;
    ComboBox* Combo1;
    Label* Label1;
    ComboBox* Combo2;
    Label* Label5;
    Label* Label6;
    RichTextBox* rtMs2;
    QCheckBox* chkSound;
    GGCommand* Button1;
    GGCommand* Button2;

    // "Find"
    QGroupBox* Frame1;
    Label* Label4;
    QLineEdit* Text1;
    QCheckBox* Check1;
    QCheckBox* Check2;
    GGCommand* FindButton;
    GGCommand* FindNextButton;
    GGCommand* imgBack;

    // The sub-panels and the buttons that choose among them, by the same index.
    std::array<GGCommand*, 4> cmdmenu;
    std::array<QFrame*, 4> OwnerFrame;
    MSFlexGrid* MS3;
    GGCommand* imgso;
    MSFlexGrid* MS1;
    GGCommand* imgsoo;
    RichTextBox* rt1a;
    GGCommand* imstodo;
    RichTextBox* rt2;
    GGCommand* Button4;
    GGCommand* imgOpen;
    GGCommand* imgoe;
    GGCommand* Button5;
    GGCommand* Button6;

private:
    void makeCommands(QWidget& panel);
    void makeMessageFrame(QWidget& panel);
    void makeReminderFrame(QWidget& panel);
    void makeFindFrame(QWidget& panel);
    void makeSubPanels(QWidget& panel);
    void setTabOrder();
};

} // namespace orvalis
