// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_controls.h"

#include "address/address_search.h"
#include "address/plain_text_box.h"
#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/title_line.h"
#include "core/button_look.h"
#include "core/page_controls.h"
#include "core/picture_button.h"
#include "core/skin_picture.h"
#include "skin/ink.h"
#include "skin/palette.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>

#include <limits>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

// In pixels at scale 1.
constexpr QRect CardPlace(18, 86, 312, 302);
constexpr int LabelLeft = 28;
constexpr int LabelWidth = 50;
constexpr int FieldLeft = 80;
constexpr int FieldRight = 320;
constexpr int LineHeight = 21;
constexpr int ActionSize = 21;
constexpr int ActionGap = 4;
constexpr int CommandSize = 32;
constexpr int CommandsTop = 50;
constexpr int CommandsLeft = 26;
constexpr int CommandStep = 44;
constexpr int StepsTop = 396;
constexpr int StepsLeft = 92;
constexpr QRect PhotoPlace(380, 50, 128, 148);
constexpr QRect FindPlace(520, 48, 156, 172);
constexpr QRect NotesPlace(380, 242, 296, 180);
/// How long a line may become; the usual bound of lines would cut what a file holds.
constexpr int MostCharacters = std::numeric_limits<int>::max();

Label* quietLabel(QWidget& parent, const QString& name, const QRect& place,
                  const QString& caption) {
    Label* made = pageLabel(parent, name, place, caption);
    skin::setInk(*made, skin::colour::Quiet);
    return made;
}

QLineEdit* line(QWidget& parent, const QString& name, const QRect& place,
                const QString& accessibleName) {
    QLineEdit* made = pageLine(parent, name, place, accessibleName);
    made->setMaxLength(MostCharacters);
    keepEditsToOneLine(*made);
    return made;
}

/// A line whose meaning stands in it: as its first text, and faintly while it is empty.
QLineEdit* saidLine(QWidget& parent, const QString& name, const QRect& place,
                    const QString& meaning) {
    QLineEdit* made = line(parent, name, place, meaning);
    made->setText(meaning);
    made->setPlaceholderText(meaning);
    made->setToolTip(meaning);
    return made;
}

RichTextBox* textArea(QWidget& parent, const QString& name, const QRect& place,
                      const QString& accessibleName) {
    auto* made = new PlainTextBox(&parent);
    makePageText(*made, name, place, accessibleName);
    return made;
}

ComboBox* combo(QWidget& parent, const QString& name, const QRect& place,
                const QString& accessibleName) {
    ComboBox* made = pageCombo(parent, name, place, accessibleName);
    made->lineEdit()->setMaxLength(MostCharacters);
    keepEditsToOneLine(*made->lineEdit());
    return made;
}

/// Opens the list of a box whose text cannot be typed by a click on the text too.
class OpensByText final : public QObject {
public:
    explicit OpensByText(ComboBox& box)
        : QObject(&box)
        , m_box(box) {
        m_box.lineEdit()->setReadOnly(true);
        m_box.lineEdit()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        // At the button's release: that of a press would close the list at once.
        if (event->type() == QEvent::MouseButtonRelease) {
            m_box.setFocus(Qt::MouseFocusReason);
            m_box.showPopup();
        }
        return event->type() == QEvent::MouseButtonPress ||
               event->type() == QEvent::MouseButtonRelease;
    }

private:
    ComboBox& m_box;
};

Image* command(QWidget& panel, const QString& name, const QPoint& place, const QString& toolTip,
               const QString& picture) {
    return pictureButton(panel, name, QRect(place, QSize(CommandSize, CommandSize)), toolTip,
                         picture);
}

} // namespace

QString noMethod() {
    return u"Select method"_s;
}

AddressControls::AddressControls(QWidget& panel) {
    makeCard(panel);
    makePicture(panel);
    makeFind(panel);
    makeNotes(panel);
    makeCommands(panel);
    setTabOrder();
}

void AddressControls::makeCard(QWidget& panel) {
    card = new Image(u"card"_s, &panel);
    card->setGeometry(CardPlace);
    card->setPicture(skinPicture(u"address_card"_s));
    int number = 0;
    const auto said = [&](int top, const QString& caption) {
        pageLabel(panel, u"Label%1"_s.arg(++number), {LabelLeft, top, LabelWidth, LineHeight},
                  caption);
        return caption;
    };
    const auto place = [](int top, int left = FieldLeft, int right = FieldRight,
                          int height = LineHeight) {
        return QRect(left, top, right - left, height);
    };
    constexpr int RequiredLeft = 262;
    Text1 = line(panel, u"Text1"_s, place(95, FieldLeft, RequiredLeft), said(95, u"First"_s));
    Text2 = line(panel, u"Text2"_s, place(119, FieldLeft, RequiredLeft), said(119, u"Second"_s));
    for (QLineEdit* name : {Text1, Text2}) {
        name->setText(u"required"_s);
        name->setToolTip(u"Required"_s);
    }
    Combo1 = combo(panel, u"Combo1"_s, place(142), said(143, u"Area"_s));
    Combo1->setText(u"Friends"_s);
    Text3 =
        textArea(panel, u"Text3"_s, place(169, FieldLeft, FieldRight, 44), said(169, u"Address"_s));
    Text4 = saidLine(panel, u"Text4"_s, place(216, FieldLeft, 236), u"Town"_s);
    Text5 = saidLine(panel, u"Text5"_s, place(216, 240), u"Pin"_s);
    Text6 = saidLine(panel, u"Text6"_s, place(240, FieldLeft, 198), u"District"_s);
    Text7 = saidLine(panel, u"Text7"_s, place(240, 202), u"State"_s);
    Text8 = saidLine(panel, u"Text8"_s, place(264), u"Country"_s);
    constexpr int BeforeAction = FieldRight - ActionSize - ActionGap;
    Text9 = line(panel, u"Text9"_s, place(288, FieldLeft, BeforeAction), said(288, u"Tel"_s));
    Text10 = line(panel, u"Text10"_s, place(312, FieldLeft, BeforeAction), said(312, u"Fax"_s));
    Text11 = line(panel, u"Text11"_s, place(336, FieldLeft, BeforeAction), said(336, u"Email"_s));
    Text12 = line(panel, u"Text12"_s, place(360, FieldLeft, BeforeAction), said(360, u"Web"_s));
    quietLabel(panel, u"Label13"_s, place(95, RequiredLeft + ActionGap), u"Required"_s);
    quietLabel(panel, u"Label14"_s, place(119, RequiredLeft + ActionGap), u"Required"_s);
}

void AddressControls::makePicture(QWidget& panel) {
    imgAdresa2 = new Image(u"imgAdresa2"_s, &panel);
    imgAdresa2->setGeometry(PhotoPlace);
    imgAdresa2->setPicture(skinPicture(u"contact"_s));
    imgAdresa2->hide();
    imgAdresa1 = new Image(u"imgAdresa1"_s, &panel);
    imgAdresa1->setGeometry(PhotoPlace);
    imgAdresa1->setPicture(imgAdresa2->Picture());
    imgAdresa1->setTabStop(true);
    imgAdresa1->setCursor(Qt::PointingHandCursor);
    Label* words =
        quietLabel(panel, u"Label15"_s, {372, 202, 144, 16}, u"Click on to insert picture"_s);
    words->setAlignment(Qt::AlignCenter);
    imgAdresa1->setAccessibleName(words->Caption());
    txtppath = new QLineEdit(&panel);
    txtppath->setObjectName(u"txtppath"_s);
    txtppath->setMaxLength(MostCharacters);
    txtppath->hide();
}

void AddressControls::makeFind(QWidget& panel) {
    Frame2 = pageFrame(panel, u"Frame2"_s, FindPlace, u"Find"_s);
    const Label* by = pageLabel(*Frame2, u"Label17"_s, {10, 18, 136, 16}, u"Search by:"_s);
    Combo2 = combo(*Frame2, u"Combo2"_s, {10, 35, 136, 22}, by->Caption());
    for (const QString& method : searchMethods().first(2))
        Combo2->AddItem(method);
    Combo2->setText(noMethod());
    new OpensByText(*Combo2);
    const Label* value = pageLabel(*Frame2, u"Label18"_s, {10, 64, 136, 16}, u"Search for:"_s);
    Combo3 = combo(*Frame2, u"Combo3"_s, {10, 81, 136, 22}, value->Caption());
    Combo3->setEnabled(false);
    chCase = pageCheck(*Frame2, u"chCase"_s, {10, 111, 136, 18}, u"&Match Case"_s);
    cmdFind = pageButton(*Frame2, u"cmdFind"_s, {42, 138, 72, 24}, u"Find"_s);
    wearPicture(*cmdFind, u"find_small"_s);
    cmdFind->setEnabled(false);
    Combo4 = combo(panel, u"Combo4"_s, {0, 0, 136, 22}, {});
    Combo4->hide();
}

void AddressControls::makeNotes(QWidget& panel) {
    Label* words = pageLabel(panel, u"Label19"_s, {380, 224, 200, 16}, u"NOTES"_s);
    Text13 = textArea(panel, u"Text13"_s, NotesPlace, words->Caption());
    PB1 = new ProgressBar(u"PB1"_s, &panel);
    PB1->setGeometry(380, 425, 296, 8);
    PB1->hide();
}

void AddressControls::makeCommands(QWidget& panel) {
    int left = CommandsLeft;
    const auto next = [&](const QString& name, const QString& toolTip, const QString& picture) {
        Image* made = command(panel, name, {left, CommandsTop}, toolTip, picture);
        left += CommandStep;
        return made;
    };
    imgNew = next(u"imgNew"_s, u"New Item"_s, u"new"_s);
    imgAdd = next(u"imgAdd"_s, u"Add Item"_s, u"add_contact"_s);
    imgSave = next(u"imgSave"_s, u"Save Changes"_s, u"save"_s);
    imgDel = next(u"imgDel"_s, u"Delete Item"_s, u"clear"_s);
    imgSort = next(u"imgSort"_s, u"Sort Items"_s, u"sort"_s);
    imgPrint = next(u"imgPrint"_s, u"Print Item(s)"_s, u"print"_s);
    imgBack = next(u"imgBack"_s, u"Backup Address Data"_s, u"backup"_s);
    left = StepsLeft;
    const auto step = [&](const QString& name, const QString& toolTip, const QString& picture) {
        Image* made = command(panel, name, {left, StepsTop}, toolTip, picture);
        left += CommandStep;
        return made;
    };
    Command2 = step(u"Command2"_s, u"First"_s, u"step_first"_s);
    Command3 = step(u"Command3"_s, u"Previous"_s, u"step_previous"_s);
    Command4 = step(u"Command4"_s, u"Next"_s, u"step_next"_s);
    Command5 = step(u"Command5"_s, u"Last"_s, u"step_last"_s);
    const auto action = [&](const QString& name, const QLineEdit& field, const QString& toolTip,
                            const QString& picture) {
        return pictureButton(panel, name,
                             {FieldRight - ActionSize, field.y(), ActionSize, ActionSize}, toolTip,
                             picture);
    };
    imgPhone = action(u"imgPhone"_s, *Text9, u"Launch Dialer"_s, u"phone"_s);
    imgEmail = action(u"imgEmail"_s, *Text11, u"Send Email"_s, u"mail"_s);
    imgNet = action(u"imgNet"_s, *Text12, u"Online"_s, u"web"_s);
}

void AddressControls::setTabOrder() {
    orvalis::setTabOrder({Text1,    Text2,    Combo1,   Text3,     Text4,    Text5,   Text6,
                          Text7,    Text8,    Text9,    imgPhone,  Text10,   Text11,  imgEmail,
                          Text12,   imgNet,   Text13,   Combo2,    Combo3,   chCase,  imgNew,
                          imgAdd,   imgSave,  imgDel,   imgSort,   imgPrint, imgBack, Command2,
                          Command3, Command4, Command5, imgAdresa1});
}

std::array<QLineEdit*, 11> AddressControls::lines() const {
    return {Text1, Text2, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12};
}

AddressRecord AddressControls::contact() const {
    return {.First = Text1->text(),
            .Second = Text2->text(),
            .Area = Combo1->Text(),
            .Address = Text3->Text(),
            .Town = Text4->text(),
            .Pin = Text5->text(),
            .District = Text6->text(),
            .State = Text7->text(),
            .Country = Text8->text(),
            .Tel = Text9->text(),
            .Fax = Text10->text(),
            .Email = Text11->text(),
            .Web = Text12->text(),
            .Notes = Text13->Text(),
            .Picture = {}};
}

void AddressControls::show(const AddressRecord& contact) {
    Text1->setText(contact.First);
    Text2->setText(contact.Second);
    Combo1->setText(contact.Area);
    Text3->SetText(contact.Address);
    Text4->setText(contact.Town);
    Text5->setText(contact.Pin);
    Text6->setText(contact.District);
    Text7->setText(contact.State);
    Text8->setText(contact.Country);
    Text9->setText(contact.Tel);
    Text10->setText(contact.Fax);
    Text11->setText(contact.Email);
    Text12->setText(contact.Web);
    Text13->SetText(contact.Notes);
    // A line that does not fit shows its beginning.
    for (QLineEdit* line : lines())
        line->setCursorPosition(0);
    Combo1->lineEdit()->setCursorPosition(0);
}

void AddressControls::clear() {
    show({});
}

} // namespace orvalis
