// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/print_window.h"

#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "controls/rich_text_files.h"
#include "controls/selection_font.h"
#include "core/program.h"
#include "platform/registry.h"
#include "runtime/app.h"
#include "runtime/files.h"
#include "runtime/numeric_text.h"

// The commands of the print window's toolbar.

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int PrintDialogFlags = 6;
constexpr int InchMargin = 1440; // twips
constexpr double LargestFontSize = 2160;
const QString PageFilter = u"Address (*.rtf)|*.rtf|Text (*.txt)|*.txt"_s;
const QString FontSection = u"Slova"_s;
const QString FontNameKey = u"Imslova"_s;
const QString FontSizeKey = u"Vslova"_s;

/// How a page of that name is read and written.
int pageFlags(const QString& path) {
    return path.right(4).toUpper() == u".RTF"_s ? RichTextBox::rtfRTF : RichTextBox::rtfText;
}

/// The page as the file keeps it.
void showSaved(RichTextBox& page, const QString& path, int flags) {
    page.SetText({});
    page.files().LoadFile(path, flags);
}

} // namespace

void frmPrint::tb1_ButtonClick(const QString& key) {
    if (key == u"print")
        print();
    else if (key == u"open")
        open();
    else if (key == u"save")
        save();
    else if (key == u"add")
        stampa();
    else if (key == u"font")
        changeFont();
    else if (key == u"del")
        clearSelection();
    else
        showFind();
}

void frmPrint::print() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        CommonDialog1.Flags = PrintDialogFlags;
        CommonDialog1.ShowPrinter();
        if (m_rtb->Text().isEmpty())
            m_program.boxes().MsgBox(u"Nothing to print."_s, MsgFlags::InformationIcon);
        else
            m_program.windows.get<NotesPanel>().PrintRTF(*m_rtb, InchMargin, InchMargin, InchMargin,
                                                         InchMargin);
    });
}

void frmPrint::open() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        CommonDialog1.Filter = PageFilter;
        CommonDialog1.FileName.clear();
        CommonDialog1.ShowOpen();
        m_rtb->files().LoadFile(CommonDialog1.FileName, pageFlags(CommonDialog1.FileName));
    });
}

void frmPrint::save() {
    endSilently([this] {
        while (!askWhereToSave()) {
        }
        const QString path = CommonDialog1.FileName;
        const int flags = pageFlags(path);
        const bool exists = FileExists(path);
        if (exists && m_program.boxes().MsgBox(
                          u"The File "_s + path + u" already exists.\nDo you want to replace it?"_s,
                          MsgFlags::OkCancel) != Answer::Ok)
            return;
        m_rtb->files().SaveFile(path, flags);
        if (exists || flags == RichTextBox::rtfText)
            showSaved(*m_rtb, path, flags);
    });
}

/// \returns false where the dialog is to come up again.
bool frmPrint::askWhereToSave() {
    CommonDialog1.CancelError = true;
    CommonDialog1.Filter = PageFilter;
    CommonDialog1.FileName.clear();
    CommonDialog1.ShowSave();
    const App& app = m_program.services.app;
    if (CommonDialog1.FileName != app.file(u"weekly.rtf"_s) &&
        CommonDialog1.FileName != app.file(u"Vazno.rtf"_s))
        return true;
    m_program.boxes().MsgBox(u"Can't overwrite files needed for Orvalis. "
                             "Choose a different name for backup file."_s,
                             MsgFlags::StopIcon, u"Warning"_s);
    return false;
}

void frmPrint::changeFont() {
    endSilently([this] {
        CommonDialog1.CancelError = true;
        // The colour is not among them: the dialog offers the one it was left with.
        CommonDialog1.FontBold = notNull(m_rtb->SelBold());
        CommonDialog1.FontItalic = notNull(m_rtb->SelItalic());
        CommonDialog1.FontName = notNull(m_rtb->SelFontName());
        CommonDialog1.FontSize = notNull(m_rtb->SelFontSize());
        CommonDialog1.FontStrikethru = notNull(m_rtb->SelStrikeThru());
        CommonDialog1.FontUnderline = notNull(m_rtb->SelUnderline());
        CommonDialog1.Flags = FontDialogFlags;
        CommonDialog1.ShowFont();
        applyFontToSelection(CommonDialog1, *m_rtb);
        storeFont();
    });
}

void frmPrint::storeFont() {
    Registry& settings = m_program.services.settings;
    settings.putSetting(FontSection, FontNameKey, notNull(m_rtb->SelFontName()));
    settings.putSetting(FontSection, FontSizeKey, numberText(notNull(m_rtb->SelFontSize()), u'.'));
}

void frmPrint::loadFont() {
    Registry& settings = m_program.services.settings;
    resumeNext(
        [&] {
            m_rtb->SetSelFontName(
                settings.setting(FontSection, FontNameKey, u"Arial"_s).toString());
        },
        [&] {
            const auto size =
                numericValue(settings.setting(FontSection, FontSizeKey, u"10"_s).toString());
            if (size && *size <= LargestFontSize)
                m_rtb->SetSelFontSize(*size);
        });
}

void frmPrint::clearSelection() {
    if (m_rtb->SelText().isEmpty())
        m_program.boxes().MsgBox(u"Select text to clear."_s, MsgFlags::InformationIcon);
    else
        m_rtb->SetSelText({});
}

void frmPrint::showFind() {
    m_program.windows.get<FindWindow>().form().ShowOver(*this);
}

} // namespace orvalis
