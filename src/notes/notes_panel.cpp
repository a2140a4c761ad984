// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_panel.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/clock_label.h"
#include "core/program.h"
#include "notes/document_rules.h"
#include "platform/screen.h"
#include "runtime/format.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int RightMouseButton = 2;
constexpr double RightPageFontSize = 10;

} // namespace

frmnotes2::frmnotes2(Program& program)
    : ChromePanel(program, chromeRow(ChromeKind::Notes))
    , ui(*this)
    , CommonDialog1(program.services.dialogs)
    , m_font(program.services.settings, u"RT2"_s, program.services.screen)
    , m_recovery(program.recovery.add([this] { return unsavedTexts(); })) {
    connectChrome();
    connectDocument();
    connectToolbars();
    connectFind();
    connectCommands();
    connectKeys();
    tabToChromeAfter(*ui.imgPrint);
}

void frmnotes2::connectChrome() {
    connect(
        lblVreme, &Label::MouseDown, this,
        [this](int button) {
            if (button == RightMouseButton)
                showDateMenu();
        });
}

void frmnotes2::showDateMenu(std::optional<QPoint> place) {
    if (program().windows.knows<PopupMenus>())
        program().windows.get<PopupMenus>().PopupMenu(u"mnudate"_s, place);
}

void frmnotes2::onLoad() {
    m_Changed = false;
    m_font.load(*ui.rt1);
    layOut();
    ui.rt1a->SetSelFontSize(RightPageFontSize);
    UpdateTB();
    ui.rt1->setFocus();
}

bool frmnotes2::exitExtra() {
    return mayLoseChanges(MsgFlags::OkCancel + MsgFlags::ExclamationIcon);
}

std::vector<UnsavedText> frmnotes2::unsavedTexts() const {
    if (!isLoaded() || !m_Changed)
        return {};
    return {{u"Notes, left page \"%1\""_s.arg(ui.Label3->Caption()), ui.rt1->TextRTF()}};
}

void frmnotes2::Sad(int Kind) {
    const QString text = dateAndTime(
        Kind, Format(program().services.clock.now(), u"dddd, mmmm dd, yyyy"), lblVreme->Caption());
    if (!text.isEmpty())
        ui.rt1->SetSelText(text);
}

} // namespace orvalis
