// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_panel.h"

#include "address/address_book.h"
#include "address/address_places.h"
#include "address/contact_photo.h"
#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/mouse_numbers.h"
#include "core/program.h"
#include "core/skin_picture.h"
#include "runtime/failure.h"
#include "runtime/files.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

QStringList groups() {
    return {u"Friends"_s,   u"Family"_s,  u"Co-Workers"_s, u"Public"_s,
            u"Companies"_s, u"General"_s, u"Misc"_s};
}

} // namespace

frmnotes3::frmnotes3(Program& program, AddressBook& book)
    : ChromePanel(program, chromeRow(ChromeKind::Address))
    , m_book(book)
    , ui(*this)
    , CommonDialog1(program.services.dialogs) {
    setWindowTitle(u"Address"_s);
    connectChrome();
    connectSteps();
    connectEditing();
    connectFinding();
    connectActions();
    tabToChromeAfter(*ui.imgAdresa1);
}

void frmnotes3::connectChrome() {
    behaveAsBackground(ui.card);
    connect(ui.imgPrint, &Image::MouseDown, this, [this](int button) {
        if (button != LeftButton)
            return;
        HoverReset();
        this->program().windows.get<PopupMenus>().PopupMenu(u"mnustampa"_s);
    });
}

void frmnotes3::onLoad() {
    resumeNext([this] { m_book.ensureFile(program().boxes()); }, [this] { layOut(); },
               [this] { CurrentIndex = 0; }, [this] { m_book.load(); }, [this] { SortRecords(); },
               [this] {
                   for (const QString& group : groups())
                       ui.Combo1->AddItem(group);
               },
               [this] { ShowRecord(0); });
    ui.Text1->setFocus();
}

void frmnotes3::ShowRecord(int index) {
    const AddressRecord& record = m_book.record(index);
    ui.show(record);
    // A picture is on show, and no longer chosen, whatever the file turns out to be.
    if (!endSilently([&] { showPicture(record.Picture); }))
        showDefaultPicture();
    m_book.PicPath.clear();
}

void frmnotes3::showPicture(const QString& path) {
    if (path.isEmpty() || !FileExists(path)) {
        showDefaultPicture();
        return;
    }
    ui.imgAdresa1->setPicture(contactPhoto(path));
    ui.imgAdresa1->setHoverPicture({});
}

void frmnotes3::showDefaultPicture() {
    ui.imgAdresa1->setPicture(ui.imgAdresa2->Picture());
    ui.imgAdresa1->setHoverPicture(skinPicture(u"contact_hover"_s));
}

void frmnotes3::connectSteps() {
    connect(ui.Command2, &Image::Click, this, &frmnotes3::Command2_Click);
    connect(ui.Command3, &Image::Click, this, &frmnotes3::Command3_Click);
    connect(ui.Command4, &Image::Click, this, &frmnotes3::Command4_Click);
    connect(ui.Command5, &Image::Click, this, &frmnotes3::Command5_Click);
}

void frmnotes3::step(int index) {
    resumeNext([&] { CurrentIndex = index; }, [this] { ShowRecord(CurrentIndex); });
}

void frmnotes3::Command2_Click() {
    if (m_book.AddressCount != 0)
        step(0);
}

void frmnotes3::Command3_Click() {
    if (m_book.AddressCount != 0)
        step(previousIndex(CurrentIndex, m_book.AddressCount));
}

void frmnotes3::Command4_Click() {
    if (m_book.AddressCount != 0)
        step(nextIndex(CurrentIndex, m_book.AddressCount));
}

void frmnotes3::Command5_Click() {
    if (m_book.AddressCount != 0)
        step(m_book.AddressCount - 1);
}

} // namespace orvalis
