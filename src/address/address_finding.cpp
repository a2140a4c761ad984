// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// How the panel orders the book and finds a contact in it.
#include "address/address_book.h"
#include "address/address_panel.h"
#include "address/address_search.h"
#include "address/address_sort.h"
#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/message_boxes.h"
#include "core/program.h"
#include "widgets/gg_command.h"

#include <QCheckBox>
#include <QLineEdit>

namespace orvalis {

using namespace Qt::StringLiterals;

void frmnotes3::connectFinding() {
    connect(ui.imgSort, &Image::Click, this, &frmnotes3::imgSort_Click);
    connect(ui.Combo2, &ComboBox::Click, this, &frmnotes3::Combo2_Click);
    connect(ui.Combo3->lineEdit(), &QLineEdit::returnPressed, this, &frmnotes3::cmdFind_Click);
    connect(ui.cmdFind, &GGCommand::Click, this, &frmnotes3::cmdFind_Click);
}

bool frmnotes3::sortsByFirst() {
    return program().windows.get<OptionsWindow>().sortByFirst();
}

bool frmnotes3::SortRecords() {
    if (m_book.AddressCount < 2)
        return false;
    sortRecords(m_book, sortsByFirst() ? &AddressRecord::First : &AddressRecord::Second);
    return true;
}

void frmnotes3::SortItems() {
    if (!SortRecords())
        return;
    program().boxes().MsgBox(sortsByFirst() ? u"Items sorted by First Name."_s
                                            : u"Items sorted by Second Name."_s,
                             MsgFlags::InformationIcon);
}

void frmnotes3::ResetSearch() {
    ui.Combo3->setEnabled(false);
    ui.cmdFind->setEnabled(false);
    ui.Combo2->setText(noMethod());
}

void frmnotes3::imgSort_Click() {
    m_book.PicPath.clear();
    ResetSearch();
    SortItems();
}

void frmnotes3::Combo2_Click() {
    ui.Combo3->setEnabled(true);
    if (const auto field = fieldOfMethod(ui.Combo2->Text()))
        ui.Combo3->SetList(fieldOfAll(m_book, *field));
    ui.cmdFind->setEnabled(true);
    ui.Combo3->setFocus();
}

void frmnotes3::cmdFind_Click() {
    if (!ui.Combo3->isEnabledTo(ui.Combo3->parentWidget())) {
        program().boxes().MsgBox(u"Select search method."_s, MsgFlags::InformationIcon);
        return;
    }
    if (ui.Combo3->Text().isEmpty()) {
        program().boxes().MsgBox(u"Enter search string."_s, MsgFlags::InformationIcon);
        return;
    }
    const SearchedValue value(ui.Combo3->Text(), ui.chCase->isChecked());
    int hit = 0;
    while (hit < m_book.AddressCount && !value.equals(ui.Combo3->List(hit)))
        ++hit;
    // An empty book is never looked through, and so nothing is missed in it.
    if (m_book.AddressCount > 0 && hit == m_book.AddressCount) {
        program().boxes().MsgBox(u"No such item."_s, MsgFlags::InformationIcon,
                                 u"Address Search"_s);
        return;
    }
    m_book.PicPath.clear();
    ShowRecord(hit);
    ResetSearch();
}

} // namespace orvalis
