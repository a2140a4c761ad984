// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/label.h"
#include "controls/load_picture.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/long_work.h"
#include "core/program.h"
#include "notes/document_rules.h"
#include "notes/notes_panel.h"
#include "notes/print_rtf.h"
#include "platform/mail.h"
#include "platform/printer.h"
#include "runtime/failure.h"

#include <QApplication>
#include <QClipboard>

// What goes beyond the editor: letters, mail, pictures, printing.

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

/// Of the print dialog: no choice of pages or of a selection.
constexpr int PrintDialogFlags = 6;

} // namespace

void frmnotes2::connectCommands() {
    connect(ui.imgFind, &Image::Click, this, &frmnotes2::imgFind_Click);
    connect(ui.imgMail, &Image::Click, this, &frmnotes2::imgMail_Click);
    connect(ui.imgSlika, &Image::Click, this, &frmnotes2::imgSlika_Click);
    connect(ui.imgPrint, &Image::Click, this, &frmnotes2::imgPrint_Click);
}

void frmnotes2::imgFind_Click() {
    if (program().windows.knows<LettersWindow>())
        program().windows.get<LettersWindow>().form().ShowOver(*this);
}

void frmnotes2::imgMail_Click() {
    if (!mayBeMailed(ui.Label3->Caption(), ui.rt1->Tag())) {
        program().boxes().MsgBox(u"Save document before you proceed."_s, MsgFlags::ExclamationIcon,
                                 u"Send Email"_s);
        return;
    }
    // The file goes as it lies on the disk, whatever stands on the left page.
    const auto failure = firstFailure([this] {
        program().services.mail.compose(
            {.recipient = u"your_address"_s, .text = {}, .attachment = ui.rt1->Tag()});
    });
    if (failure)
        program().boxes().MsgBox(failure->description(), MsgFlags::StopIcon);
}

void frmnotes2::imgSlika_Click() {
    endSilently([this] {
        QApplication::clipboard()->clear();
        CommonDialog1.CancelError = true;
        CommonDialog1.DefaultExt = u"*.bmp"_s;
        CommonDialog1.Filter = u"Images (*.bmp;*.jpg;*.jpeg;*.gif;*.wmf)|"
                               "*.bmp;*.jpg;*.jpeg;*.gif;*.wmf|All Files (*.*)|*.*"_s;
        CommonDialog1.DialogTitle = u"Insert Image"_s;
        CommonDialog1.ShowOpen();
        const LongWork work(*this, ui.PB1, program().services.clock);
        const LoadedPicture picture = LoadPicture(CommonDialog1.FileName);
        ui.ImUbaci->setPicture(picture.picture);
        setClipboardPicture(picture);
        ui.rt1->Paste();
        ui.rt1->setFocus();
    });
}

void frmnotes2::imgPrint_Click() {
    const bool chosen = endSilently([this] {
        CommonDialog1.CancelError = true;
        CommonDialog1.Flags = PrintDialogFlags;
        CommonDialog1.ShowPrinter();
    });
    if (!chosen)
        return;
    const PrintMargins inch;
    // The right page goes to paper, not the editor.
    if (ui.rt1a->Text().isEmpty())
        program().boxes().MsgBox(u"Nothing to print."_s, MsgFlags::InformationIcon);
    else
        PrintRTF(*ui.rt1a, inch.left, inch.top, inch.right, inch.bottom);
    ui.rt1->setFocus();
}

void frmnotes2::PrintRTF(RichTextBox& RTF, int LeftMarginWidth, int TopMarginHeight,
                         int RightMarginWidth, int BottomMarginHeight) {
    endSilently([&] {
        // Other windows print their pages here too.
        QWidget& window = *RTF.window();
        LongWork work(window, &window == this ? ui.PB2 : nullptr, program().services.clock);
        printPages(RTF, program().services.printer,
                   {.left = LeftMarginWidth,
                    .top = TopMarginHeight,
                    .right = RightMarginWidth,
                    .bottom = BottomMarginHeight},
                   work.part(1));
    });
}

} // namespace orvalis
