// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/image.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/long_work.h"
#include "core/program.h"
#include "notes/document_rules.h"
#include "notes/notes_panel.h"
#include "runtime/app.h"
#include "runtime/files.h"
#include "widgets/gg_command.h"

#include <utility>

// What is on the pages: new, opened, taken over, changed, saved.

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

// Where the parts of a command end, as shares of its time.
constexpr double TakenOut = 0.1;
constexpr double TakenOver = 0.55;
constexpr double Saved = 0.2;
constexpr double Reloaded = 0.3;
constexpr double Copied = 0.5;

QByteArray writtenDocument(RichTextBox& page, rtf::Progress progress) {
    const RichTextBox::Listener writing(page, std::move(progress));
    return page.TextRTF();
}

void readDocument(RichTextBox& page, const QByteArray& document, rtf::Progress progress) {
    const RichTextBox::Listener reading(page, std::move(progress));
    page.SetTextRTF(document);
}

} // namespace

void frmnotes2::connectDocument() {
    connect(ui.rt1, &RichTextBox::Change, this, &frmnotes2::rt1_Change);
    connect(ui.imgNew, &Image::Click, this, &frmnotes2::imgNew_Click);
    connect(ui.imgOpen, &Image::Click, this, &frmnotes2::imgOpen_Click);
    connect(ui.Button1, &GGCommand::Click, this, &frmnotes2::Button1_Click);
    connect(ui.imgSave, &Image::Click, this, &frmnotes2::imgSave_Click);
}

/// The plain characters alone count: a change of the format is none.
void frmnotes2::rt1_Change() {
    m_Changed = ui.rt1->Text() != ui.rt5->Text();
    UpdateTB();
}

bool frmnotes2::mayLoseChanges(int flags) {
    if (!m_Changed)
        return true;
    const Answer answer =
        program().boxes().MsgBox(u"Changes have been made. Continue?"_s, flags, u"Save Changes"_s);
    return answer == Answer::Yes || answer == Answer::Ok;
}

/// The path is emptied first, so that it is another one even where it is the same.
void frmnotes2::setDocumentPath(const QString& path) {
    ui.rt1->SetTag({});
    ui.rt1->SetTag(path);
}

void frmnotes2::imgNew_Click() {
    if (!mayLoseChanges(MsgFlags::YesNo + MsgFlags::ExclamationIcon))
        return;
    ui.rt1->SetText({});
    ui.rt5->SetText({});
    m_Changed = false;
    ui.Label3->setCaption(untitled());
    ui.rt1->SetTag({});
    ui.rt1->setFocus();
    resetFormat();
}

void frmnotes2::imgOpen_Click() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        CommonDialog1.Filter = u"RTF (*.rtf)|*.rtf|Text (*.txt)|*.txt|All Files (*.*)|*.*"_s;
        CommonDialog1.FileName.clear();
        CommonDialog1.ShowOpen();
        if (!FileExists(CommonDialog1.FileName)) {
            program().boxes().MsgBox(u"File not found!"_s, MsgFlags::InformationIcon);
            return;
        }
        LongWork work(*this, ui.PB2, program().services.clock);
        const RichTextBox::Listener reading(*ui.rt1a, work.part(1));
        const int flags = documentFlags(CommonDialog1.FileTitle);
        if (flags == RichTextBox::rtfText)
            ui.rt1a->SetText({});
        ui.rt1a->files().LoadFile(CommonDialog1.FileName, flags);
        setDocumentPath(CommonDialog1.FileName);
        ui.Label1->setCaption(CommonDialog1.FileTitle);
    });
}

void frmnotes2::Button1_Click() {
    if (!mayLoseChanges(MsgFlags::YesNo + MsgFlags::ExclamationIcon))
        return;
    endSilently([this] {
        LongWork work(*this, ui.PB1, program().services.clock);
        const QByteArray document = writtenDocument(*ui.rt1a, work.part(TakenOut));
        readDocument(*ui.rt1, document, work.part(TakenOver));
        readDocument(*ui.rt5, document, work.part(1));
        ui.Label3->setCaption(ui.Label1->Caption());
        m_Changed = false;
        ui.rt1->setFocus();
    });
}

void frmnotes2::imgSave_Click() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        std::optional<int> flags;
        while (!flags)
            flags = askWhereToSave();
        saveAs(*flags);
    });
}

/// \returns how the file is to be written, or nothing where the dialog is to come up again.
std::optional<int> frmnotes2::askWhereToSave() {
    CommonDialog1.Filter = u"Notes (*.rtf)|*.rtf|Text (*.txt)|*.txt"_s;
    CommonDialog1.FileName.clear();
    CommonDialog1.ShowSave();
    if (isNeededFile(CommonDialog1.FileName, program().services.app)) {
        program().boxes().MsgBox(u"Can't overwrite files needed for Orvalis. "
                                 "Choose a different name for backup file."_s,
                                 MsgFlags::StopIcon, u"Warning"_s);
        return std::nullopt;
    }
    const int flags = documentFlags(CommonDialog1.FileTitle);
    if (flags == RichTextBox::rtfText)
        ui.rt1a->SetText({});
    if (FileExists(CommonDialog1.FileName) &&
        program().boxes().MsgBox(replaceQuestion(CommonDialog1.FileName), MsgFlags::OkCancel) !=
            Answer::Ok)
        return std::nullopt;
    return flags;
}

void frmnotes2::saveAs(int flags) {
    LongWork work(*this, ui.PB1, program().services.clock);
    {
        RichTextBox::Listener saving(*ui.rt1, work.part(Saved));
        ui.rt1->files().SaveFile(CommonDialog1.FileName, flags);
        if (flags == RichTextBox::rtfText) {
            // The page shows what the file keeps.
            saving.turnTo(work.part(Reloaded));
            ui.rt1->SetText({});
            ui.rt1->files().LoadFile(CommonDialog1.FileName, RichTextBox::rtfText);
            setDocumentPath(CommonDialog1.FileName);
        }
    }
    const QByteArray document = writtenDocument(*ui.rt1, work.part(Copied));
    readDocument(*ui.rt5, document, work.part(1));
    m_Changed = false;
    ui.Label3->setCaption(CommonDialog1.FileTitle);
    ui.rt1->setFocus();
}

} // namespace orvalis
