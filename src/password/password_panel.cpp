// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "password/password_panel.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/mouse_numbers.h"
#include "controls/progress_bar.h"
#include "controls/rich_text_box.h"
#include "core/mouse_pointer.h"
#include "core/program.h"
#include "core/window_keys.h"
#include "password/text_cipher.h"
#include "platform/shell.h"
#include "runtime/ansi_page.h"
#include "widgets/gg_command.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

/// Shows the cipher's progress on a bar.
class ProgressOnBar final : public CipherProgress {
public:
    explicit ProgressOnBar(ProgressBar& bar)
        : m_bar(bar) {}

    void show() override { m_bar.setVisible(true); }
    void hide() override { m_bar.setVisible(false); }
    void setValue(float percent) override { m_bar.SetValue(percent); }

private:
    ProgressBar& m_bar;
};

} // namespace

frmnotes4::frmnotes4(Program& program)
    : ChromePanel(program, chromeRow(ChromeKind::Password))
    , ui(*this)
    , CommonDialog1(program.services.dialogs) {
    setWindowTitle(u"Password"_s);
    connect(ui.imgNew, &Image::Click, this, &frmnotes4::imgNew_Click);
    connect(ui.imgOpen, &Image::Click, this, &frmnotes4::imgOpen_Click);
    connect(ui.imgMail, &Image::Click, this, &frmnotes4::imgMail_Click);
    connect(ui.imgBack, &Image::Click, this, &frmnotes4::imgBack_Click);
    connect(ui.imgSave, &Image::MouseDown, this, [this](int button) {
        if (button != LeftButton)
            return;
        HoverReset();
        this->program().windows.get<PopupMenus>().PopupMenu(u"mnusave"_s);
    });
    for (int index = 0; index < 2; ++index)
        connect(ui.cmdCrypt.at(static_cast<std::size_t>(index)), &GGCommand::Click, this,
                [this, index] { cmdCrypt_Click(index); });
    pressOnKey(*this, Qt::CTRL | Qt::Key_E, *ui.cmdCrypt[0]);
    pressOnKey(*this, Qt::CTRL | Qt::Key_D, *ui.cmdCrypt[1]);
    tabToChromeAfter(*ui.imgBack);
}

void frmnotes4::onLoad() {
    layOut();
}

QString frmnotes4::EncryptString(const QString& text, const QString& password, bool encrypt,
                                 int method) {
    QString result;
    ProgressOnBar progress(*ui.PB1);
    const auto failure = firstFailure([&] {
        result = orvalis::EncryptString(text, password, encrypt, method,
                                        {.page = AnsiPage::ofUser()}, progress);
    });
    if (failure) {
        setMousePointer(MousePointer::Default);
        program().boxes().MsgBox(failure->description(), MsgFlags::StopIcon);
    }
    return result;
}

void frmnotes4::imgNew_Click() {
    ui.txtrt1->SetText({});
    ui.txtText->SetText({});
}

void frmnotes4::imgOpen_Click() {
    endSilently([this] {
        CommonDialog1.FileName.clear();
        CommonDialog1.Flags = 0;
        CommonDialog1.Filter = u"Text (*.txt)|*.txt|All Files (*.*)|*.*"_s;
        CommonDialog1.ShowOpen();
        ui.txtrt1->files().LoadFile(CommonDialog1.FileName, RichTextBox::rtfText);
    });
}

void frmnotes4::imgMail_Click() {
    // Whom the mail is for is the user's to fill in.
    program().services.shell.open(u"mailto:someone@example.com"_s);
}

void frmnotes4::imgBack_Click() {
    if (ui.txtrt1->Text().isEmpty()) {
        program().boxes().MsgBox(u"Write or load text you want to encrypt/decrypt."_s,
                                 MsgFlags::InformationIcon);
        return;
    }
    ui.txtText->SetText(ui.txtrt1->Text());
    ui.txtPW->setFocus();
}

void frmnotes4::cmdCrypt_Click(int index) {
    const auto failure = firstFailure([&] {
        if (ui.txtPW->text().isEmpty()) {
            program().boxes().MsgBox(u"Enter Password."_s, MsgFlags::StopIcon);
            return;
        }
        const int method = ui.optMethod[0]->isChecked() ? 1 : 2;
        const QString text = ui.txtText->Text();
        ui.txtText->SetText(EncryptString(text, ui.txtPW->text(), index == 0, method));
        setMousePointer(MousePointer::Default);
    });
    if (!failure)
        return;
    program().boxes().MsgBox(u"Text is too long. Split it to smaller parts and encrypt again."_s);
    setMousePointer(MousePointer::Default);
    ui.PB1->setVisible(false);
}

} // namespace orvalis
