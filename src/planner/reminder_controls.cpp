// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_controls.h"

#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/label.h"
#include "controls/month_view.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "controls/title_line.h"
#include "core/button_look.h"
#include "core/page_controls.h"
#include "core/picture_button.h"
#include "core/skin_picture.h"
#include "skin/type.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLineEdit>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr QRect EntryPlace(26, 279, 296, 155);
constexpr QRect SubPanelPlace(380, 80, 296, 354);
constexpr QRect ListPlace(0, 0, 296, 322);
constexpr QRect SavePlace(220, 329, 76, 25);
constexpr int CommandGap = 4;
constexpr QSize CommandSize(51, 25);

/// A picture button.
Image* command(QWidget& parent, const QString& name, const QRect& place, const QString& toolTip,
               const QString& pictureName) {
    Image* image = pictureButton(parent, name, place, toolTip, pictureName);
    image->setDisabledPicture(skinPicture(pictureName + u"_disabled"_s));
    return image;
}

GGCommand* button(QWidget& parent, const QString& name, const QRect& place, const QString& caption,
                  const QString& picture) {
    GGCommand* made = pageButton(parent, name, place, caption);
    wearPicture(*made, picture);
    return made;
}

/// Holds a part of the time.
ComboBox* timeCombo(QWidget& parent, const QString& name, const QRect& place,
                    const QString& accessibleName) {
    ComboBox* made = pageCombo(parent, name, place, accessibleName);
    made->setText(u"00"_s);
    return made;
}

RichTextBox* richText(QWidget& parent, const QString& name, const QRect& place,
                      const QString& accessibleName) {
    auto* made = new RichTextBox(&parent);
    makePageText(*made, name, place, accessibleName);
    return made;
}

MSFlexGrid* grid(QWidget& parent, const QString& name, const QString& accessibleName) {
    auto* made = new MSFlexGrid(&parent);
    made->setObjectName(name);
    made->setAccessibleName(accessibleName);
    made->setGeometry(ListPlace);
    made->setFont(skin::font(skin::points::Body));
    return made;
}

} // namespace

ReminderControls::ReminderControls(QWidget& panel) {
    makeCommands(panel);
    makeMessageFrame(panel);
    makeReminderFrame(panel);
    makeFindFrame(panel);
    makeSubPanels(panel);
    setTabOrder();
}

void ReminderControls::makeCommands(QWidget& panel) {
    imgNew = command(panel, u"imgNew"_s, {26, 50, 32, 32}, u"New"_s, u"new"_s);
    imgSave = command(panel, u"imgSave"_s, {92, 50, 32, 32}, u"Save Message"_s, u"save"_s);
    imgDel = command(panel, u"imgDel"_s, {158, 50, 32, 32}, u"Clear"_s, u"clear"_s);
    imgFind = command(panel, u"imgFind"_s, {224, 50, 32, 32}, u"Find in To-Do List"_s, u"find"_s);
    imgNot = command(panel, u"imgNot"_s, {290, 50, 32, 32}, u"Create Sticker"_s, u"sticker"_s);
    MonthView1 = new MonthView(&panel);
    MonthView1->setObjectName(u"MonthView1"_s);
    MonthView1->setGeometry(26, 86, 296, 161);
    MonthView1->setFont(skin::font(skin::points::Body));
    MonthView1->setToolTip(u"Click on Calendar Item to change it"_s);
    txt1 = pageLine(panel, u"txt1"_s, {26, 251, 296, 23}, u"Title"_s);
    txt1->setText(u"Title"_s);
    makeTitleLine(*txt1);
}

void ReminderControls::makeMessageFrame(QWidget& panel) {
    Frame2 = pageFrame(panel, u"Frame2"_s, EntryPlace, u"Message Text"_s);
    rt1 = richText(*Frame2, u"rt1"_s, {8, 17, 280, 103}, u"Message Text"_s);
    Command2 = pageButton(*Frame2, u"Command2"_s, {8, 125, 56, 24}, u"Font"_s);
    chkRemind = pageCheck(*Frame2, u"chkRemind"_s, {76, 127, 96, 20}, u"&Remind Me"_s);
    chkTop = pageCheck(*Frame2, u"chkTop"_s, {180, 127, 108, 20}, u"&Top Priority"_s);
}

void ReminderControls::makeReminderFrame(QWidget& panel) {
    Frame3 = pageFrame(panel, u"Frame3"_s, EntryPlace, u"Click on calendar to set date"_s);
    Label8 = pageLabel(*Frame3, u"Label8"_s, {10, 17, 82, 16}, u"Date set to: "_s);
    Label9 = pageLabel(*Frame3, u"Label9"_s, {94, 17, 120, 16}, {});
    Label9->setFont(skin::font(skin::points::Body, true));
    Label3 = pageLabel(*Frame3, u"Label3"_s, {10, 40, 34, 16}, u"Hour"_s);
    Combo1 = timeCombo(*Frame3, u"Combo1"_s, {46, 36, 52, 23}, u"Hour"_s);
    Label1 = pageLabel(*Frame3, u"Label1"_s, {108, 40, 26, 16}, u"Min"_s);
    Combo2 = timeCombo(*Frame3, u"Combo2"_s, {136, 36, 52, 23}, u"Min"_s);
    Label5 = pageLabel(*Frame3, u"Label5"_s, {198, 36, 90, 23}, {});
    Label5->setFont(skin::font(skin::points::ChosenTime, true));
    Label5->setAlignment(Qt::AlignCenter);
    Label6 = pageLabel(*Frame3, u"Label6"_s, {10, 63, 200, 16}, u"Event Message"_s);
    rtMs2 = richText(*Frame3, u"rtMs2"_s, {8, 80, 280, 41}, u"Event Message"_s);
    chkSound = pageCheck(*Frame3, u"chkSound"_s, {10, 127, 118, 20}, u"&Enable Sound"_s);
    Button1 = button(*Frame3, u"Button1"_s, {136, 125, 66, 24}, u"OK"_s, u"ok"_s);
    Button2 = button(*Frame3, u"Button2"_s, {206, 125, 82, 24}, u"Cancel"_s, u"cancel"_s);
}

void ReminderControls::makeFindFrame(QWidget& panel) {
    Frame1 = pageFrame(panel, u"Frame1"_s, EntryPlace, u"Find"_s);
    Label4 = pageLabel(*Frame1, u"Label4"_s, {10, 18, 200, 16}, u"Enter search string"_s);
    Text1 = pageLine(*Frame1, u"Text1"_s, {10, 36, 276, 23}, Label4->Caption());
    Check1 = pageCheck(*Frame1, u"Check1"_s, {10, 68, 120, 20}, u"&Match case"_s);
    Check2 = pageCheck(*Frame1, u"Check2"_s, {140, 68, 146, 20}, u"&Whole word only"_s);
    FindButton = button(*Frame1, u"FindButton"_s, {10, 125, 84, 24}, u"Find"_s, u"find_small"_s);
    FindNextButton = button(*Frame1, u"FindNextButton"_s, {106, 125, 84, 24}, u"Next"_s, u"next"_s);
    imgBack = button(*Frame1, u"imgBack"_s, {202, 125, 84, 24}, u"Back"_s, u"back"_s);
}

void ReminderControls::makeSubPanels(QWidget& panel) {
    const std::array captions{u"Remind"_s, u"Priority"_s, u"To-Do"_s, u"Weekly"_s};
    for (int index = 0; index < 4; ++index) {
        const auto at = static_cast<std::size_t>(index);
        cmdmenu[at] = pageButton(panel, u"cmdmenu(%1)"_s.arg(index), {380 + 74 * index, 51, 74, 25},
                                 captions[at], skin::MenuTab);
        OwnerFrame[at] = new QFrame(&panel);
        OwnerFrame[at]->setObjectName(u"OwnerFrame(%1)"_s.arg(index));
        OwnerFrame[at]->setGeometry(SubPanelPlace);
    }
    MS3 = grid(*OwnerFrame[0], u"MS3"_s, u"Remind"_s);
    imgso = button(*OwnerFrame[0], u"imgso"_s, SavePlace, u"Save"_s, u"save_small"_s);
    MS1 = grid(*OwnerFrame[1], u"MS1"_s, u"Priority"_s);
    imgsoo = button(*OwnerFrame[1], u"imgsoo"_s, SavePlace, u"Save"_s, u"save_small"_s);
    rt1a = richText(*OwnerFrame[2], u"rt1a"_s, ListPlace, u"To-Do"_s);
    // The right click on the to-do document is for the menu that clears.
    rt1a->setEditMenu(false);
    imstodo = button(*OwnerFrame[2], u"imstodo"_s, SavePlace, u"Save"_s, u"save_small"_s);
    rt2 = richText(*OwnerFrame[3], u"rt2"_s, ListPlace, u"Weekly"_s);
    // Save stands where it stands on the other sheets, and looks as it does there.
    const auto place = [](int number) {
        return QRect(QPoint(number * (CommandSize.width() + CommandGap), SavePlace.y()),
                     CommandSize);
    };
    Button4 = pageButton(*OwnerFrame[3], u"Button4"_s, place(0), u"New"_s);
    imgOpen = pageButton(*OwnerFrame[3], u"imgOpen"_s, place(1), u"Open"_s);
    Button6 = pageButton(*OwnerFrame[3], u"Button6"_s, place(2), u"Font"_s);
    Button5 = pageButton(*OwnerFrame[3], u"Button5"_s, place(3), u"Save As"_s);
    imgoe = button(*OwnerFrame[3], u"imgoe"_s, SavePlace, u"Save"_s, u"save_small"_s);
}

void ReminderControls::setTabOrder() {
    orvalis::setTabOrder({txt1,     rt1,    chkRemind,  chkTop, Combo1, Combo2,  rtMs2,
                          chkSound, Text1,  Check1,     Check2, imgNew, imgSave, imgDel,
                          imgFind,  imgNot, MonthView1, MS3,    MS1,    rt1a,    rt2});
}

} // namespace orvalis
