// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"

#include <array>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QWidget;

namespace orvalis {

class ComboBox;
class GGCommand;
class Image;
class Label;
class ProgressBar;
class RichTextBox;

/// The controls of the Address panel beside the chrome, made on the panel in their design places:
/// on the left page the contact's card, on the right one picture, search and notes. The panel owns
/// them; this only names them.
class AddressControls {
public:
    explicit AddressControls(QWidget& panel);

    /// The contact as the controls show it. It has no picture: no control holds its path.
    AddressRecord contact() const;
    /// Shows a contact, from its first name to its notes, in the order of the record.
    void show(const AddressRecord& contact);
    /// The fields' texts, and nothing else, become empty.
    void clear();

    Image* card; ///< lies under the fields
    QLineEdit* Text1;
    QLineEdit* Text2;
    ComboBox* Combo1;
    RichTextBox* Text3;
    QLineEdit* Text4;
    QLineEdit* Text5;
    QLineEdit* Text6;
    QLineEdit* Text7;
    QLineEdit* Text8;
    QLineEdit* Text9;
    QLineEdit* Text10;
    QLineEdit* Text11;
    QLineEdit* Text12;
    RichTextBox* Text13;

    Image* imgAdresa1;
    Image* imgAdresa2; ///< holds the picture of a contact that has none
    QLineEdit* txtppath;

    Image* imgNew;
    Image* imgAdd;
    Image* imgSave;
    Image* imgDel;
    Image* imgSort;
    Image* imgPrint;
    Image* imgBack;
    Image* imgEmail;
    Image* imgNet;
    Image* imgPhone;
    Image* Command2;
    Image* Command3;
    Image* Command4;
    Image* Command5;

    // "Find"
    QGroupBox* Frame2;
    ComboBox* Combo2;
    ComboBox* Combo3;
    QCheckBox* chCase;
    GGCommand* cmdFind;

    ComboBox* Combo4; ///< where a name is looked for that is to be added
    ProgressBar* PB1;

private:
    void makeCard(QWidget& panel);
    void makePicture(QWidget& panel);
    void makeFind(QWidget& panel);
    void makeNotes(QWidget& panel);
    void makeCommands(QWidget& panel);
    void setTabOrder();
    std::array<QLineEdit*, 11> lines() const;
};

/// What the list of methods shows while none is chosen.
QString noMethod();

} // namespace orvalis
