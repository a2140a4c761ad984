// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// What the panel hands to other programs and other files.
#include "address/address_book.h"
#include "address/address_panel.h"
#include "address/address_text.h"
#include "address/contact_block.h"
#include "controls/image.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/program.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "runtime/ansi_page.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"

#include <QLineEdit>

namespace orvalis {

using namespace Qt::StringLiterals;

void frmnotes3::connectActions() {
    connect(ui.imgEmail, &Image::Click, this, &frmnotes3::imgEmail_Click);
    connect(ui.imgNet, &Image::Click, this, &frmnotes3::imgNet_Click);
    connect(ui.imgPhone, &Image::Click, this, &frmnotes3::imgPhone_Click);
    connect(ui.imgBack, &Image::Click, this, &frmnotes3::imgBack_Click);
}

void frmnotes3::imgEmail_Click() {
    const QString address = ui.Text11->text();
    if (address.isEmpty()) {
        program().boxes().MsgBox(u"Please, enter e-mail address."_s, MsgFlags::InformationIcon);
        return;
    }
    program().services.shell.open(u"mailto:"_s + address);
}

void frmnotes3::imgNet_Click() {
    const QString address = ui.Text12->text();
    if (address.isEmpty() || address == u"http://"_s) {
        program().boxes().MsgBox(u"Please, enter web address in a form:\n"
                                 "http://www.example.com  or\n"
                                 "www.example.com"_s,
                                 MsgFlags::InformationIcon);
        return;
    }
    program().services.shell.open(address);
}

void frmnotes3::imgPhone_Click() {
    QString path =
        program().services.settings.setting(u"Telefon"_s, u"Puta"_s, QString()).toString();
    Shell& shell = program().services.shell;
    if (endSilently([&] { shell.start(u"DIALER.EXE"_s); }))
        return;
    if (path.isEmpty()) {
        if (program().boxes().MsgBox(u"Locate Windows Phone Dialer"_s,
                                     MsgFlags::OkCancel + MsgFlags::QuestionIcon) == Answer::Cancel)
            return;
        path = Nadjiga();
    }
    shell.start(path);
}

QString frmnotes3::Nadjiga() {
    QString path;
    endSilently([&] {
        CommonDialog1.CancelError = true;
        CommonDialog1.Filter = u"Programs (*.exe)|*.exe"_s;
        CommonDialog1.FileName.clear();
        CommonDialog1.InitDir = u"C:\\Program Files\\Windows NT"_s;
        CommonDialog1.ShowOpen();
        program().services.settings.putSetting(u"Telefon"_s, u"Puta"_s, CommonDialog1.FileName);
        path = CommonDialog1.FileName;
    });
    return path;
}

bool frmnotes3::askWhereToBackUp() {
    CommonDialog1.CancelError = true;
    CommonDialog1.Filter = u"Address data (*.dat) |*.dat"_s;
    CommonDialog1.FileName.clear();
    CommonDialog1.InitDir = program().services.app.Path();
    CommonDialog1.DialogTitle = u"Backup data"_s;
    CommonDialog1.ShowSave();
    const bool isOurs =
        CommonDialog1.FileName == m_book.snapshotPath() || CommonDialog1.FileName == m_book.path();
    if (isOurs)
        program().boxes().MsgBox(u"Can't overwrite files needed for Orvalis. Choose a different "
                                 "name for backup file."_s,
                                 MsgFlags::StopIcon, u"Warning"_s);
    return !isOurs;
}

void frmnotes3::imgBack_Click() {
    endSilently([this] {
        while (!askWhereToBackUp())
            ;
        const QString path = CommonDialog1.FileName;
        if (FileExists(path) &&
            program().boxes().MsgBox(
                u"The File %1 already exists.\nDo you want to replace it?"_s.arg(path),
                MsgFlags::OkCancel) == Answer::Cancel) {
            // What is chosen now is not taken up: the way out is to cancel this dialog too.
            CommonDialog1.DialogTitle = u"Backup data"_s;
            CommonDialog1.ShowSave();
        }
        m_book.writeTo(path);
    });
}

void frmnotes3::funcSave() {
    const QString path = program().services.app.file(u"Address.txt"_s);
    const QByteArray before = FileExists(path) ? readWhole(path) : QByteArray();
    saveWhole(path, before + AnsiPage::ofUser().encode(contactAsText(ui.contact())));
}

void frmnotes3::FillPrint() {
    auto& window = program().windows.get<PrintWindow>();
    window.rtb().SetText({});
    insertContact(window.rtb(), ui.contact(), BoldLines::Labels);
    window.form().ShowOver(*this);
}

} // namespace orvalis
