// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// How the panel changes the book.
#include "address/address_book.h"
#include "address/address_panel.h"
#include "address/address_places.h"
#include "address/address_search.h"
#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "runtime/failure.h"

#include <QLineEdit>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

/// What the fields begin with. They are only texts: one that is left so is stored so.
AddressRecord newContact() {
    AddressRecord contact;
    contact.First = u"Required"_s;
    contact.Second = u"Required"_s;
    contact.Web = u"http://"_s;
    return contact;
}

} // namespace

void frmnotes3::connectEditing() {
    connect(ui.imgNew, &Image::Click, this, &frmnotes3::imgNew_Click);
    connect(ui.imgAdd, &Image::Click, this, &frmnotes3::imgAdd_Click);
    connect(ui.imgSave, &Image::Click, this, &frmnotes3::imgSave_Click);
    connect(ui.imgDel, &Image::Click, this, &frmnotes3::imgDel_Click);
    connect(ui.imgAdresa1, &Image::Click, this, &frmnotes3::imgAdresa1_Click);
}

void frmnotes3::imgNew_Click() {
    endSilently([this] {
        // In an empty book this fails, and the fields keep what stands in them.
        ui.Text1->setText(m_book.record(CurrentIndex).First);
        ui.show(newContact());
        showDefaultPicture();
        NewItemPending = true;
        m_book.PicPath.clear();
        ResetSearch();
    });
}

bool frmnotes3::lacksName() {
    if (ui.Text1->text().isEmpty()) {
        program().boxes().MsgBox(u"First Name is required item."_s, MsgFlags::InformationIcon);
        return true;
    }
    if (ui.Text2->text().isEmpty()) {
        program().boxes().MsgBox(u"Second Name is required item."_s, MsgFlags::InformationIcon);
        return true;
    }
    return false;
}

bool frmnotes3::stands(const QString& text, QString AddressRecord::*field) {
    ui.Combo4->SetList(fieldOfAll(m_book, field));
    return ui.Combo4->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
}

bool frmnotes3::FirstExists(const QString& text) {
    return FirstMatch = stands(text, &AddressRecord::First);
}

bool frmnotes3::SecondExists(const QString& text) {
    return SecondMatch = stands(text, &AddressRecord::Second);
}

AddressRecord frmnotes3::contactToStore() const {
    AddressRecord record = ui.contact();
    record.Picture = m_book.PicPath;
    return record;
}

void frmnotes3::append(const AddressRecord& contact) {
    resumeNext([this] { m_book.makeRoom(); }, [&] { m_book.record(m_book.AddressCount) = contact; },
               [this] { ++m_book.AddressCount; });
}

void frmnotes3::imgAdd_Click() {
    if (lacksName())
        return;
    const QString first = ui.Text1->text();
    const QString second = ui.Text2->text();
    FirstExists(first);
    SecondExists(second);
    if (FirstMatch && SecondMatch) {
        program().boxes().MsgBox(u"Item \n%1  %2\nalready exist.\nChange First or Second Name to "
                                 "save data as a new item."_s.arg(first, second),
                                 MsgFlags::InformationIcon);
        return;
    }
    append(contactToStore());
    resumeNext([this] { CurrentIndex = m_book.AddressCount - 1; }, [this] { ui.txtppath->clear(); },
               [this] { m_book.WriteAddressFile(); });
    NewItemPending = false;
    m_book.PicPath.clear();
    ResetSearch();
    program().boxes().MsgBox(u"Item added."_s, MsgFlags::InformationIcon);
}

void frmnotes3::imgSave_Click() {
    if (lacksName())
        return;
    if (NewItemPending || m_book.AddressCount == 0) {
        program().boxes().MsgBox(u"Click on Add Button to add data as a new item."_s);
        return;
    }
    const AddressRecord saved = contactToStore();
    closeGap(m_book, CurrentIndex);
    --m_book.AddressCount;
    if (m_book.AddressCount > 0)
        CurrentIndex = indexWithin(CurrentIndex, m_book.AddressCount);
    resumeNext([this] { ShowRecord(CurrentIndex); });
    append(saved);
    // One past the last, so that the step back ends at the record that was saved.
    CurrentIndex = m_book.AddressCount;
    resumeNext([this] { m_book.WriteAddressFile(); });
    ui.txtppath->clear();
    Command3_Click();
    m_book.PicPath.clear();
    ResetSearch();
    program().boxes().MsgBox(u"Changes saved."_s, MsgFlags::InformationIcon);
}

void frmnotes3::imgDel_Click() {
    endSilently([this] {
        if (m_book.AddressCount == 1) {
            program().boxes().MsgBox(u"Can't remove last item. Modify it and save changes."_s,
                                     MsgFlags::ExclamationIcon);
            return;
        }
        if (NewItemPending) {
            program().boxes().MsgBox(u"Item not added yet."_s);
            return;
        }
        if (program().boxes().MsgBox(u"Do you want to continue?"_s,
                                     MsgFlags::YesNo + MsgFlags::StopIcon,
                                     u"Remove Entry"_s) == Answer::No)
            return;
        if (m_book.AddressCount < 2) {
            CurrentIndex = 0;
            ui.clear();
            m_book.PicPath.clear();
            m_book.AddressCount = 0;
            return;
        }
        closeGap(m_book, CurrentIndex);
        m_book.WriteAddressFile();
        --m_book.AddressCount;
        CurrentIndex = indexWithin(CurrentIndex, m_book.AddressCount);
        ShowRecord(CurrentIndex);
        m_book.WriteAddressFile();
        m_book.PicPath.clear();
        ResetSearch();
    });
}

void frmnotes3::imgAdresa1_Click() {
    endSilently([this] {
        CommonDialog1.DefaultExt = u"*.bmp"_s;
        CommonDialog1.Filter = u"Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|"
                               "*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|All Files (*.*)|*.*"_s;
        CommonDialog1.DialogTitle = u"Insert Image"_s;
        CommonDialog1.CancelError = false;
        CommonDialog1.ShowOpen();
        m_book.PicPath = CommonDialog1.FileName;
        ui.txtppath->setText(CommonDialog1.FileName);
        showPicture(m_book.PicPath);
    });
}

} // namespace orvalis
