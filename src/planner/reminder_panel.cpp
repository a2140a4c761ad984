// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "planner/reminder_panel.h"

#include "controls/combo_box.h"
#include "controls/image.h"
#include "controls/label.h"
#include "controls/month_view.h"
#include "controls/ms_flex_grid.h"
#include "controls/rich_text_box.h"
#include "core/clock_label.h"
#include "core/program.h"
#include "platform/screen.h"
#include "runtime/app.h"
#include "runtime/format.h"
#include "runtime/time_parts.h"
#include "runtime/twips.h"

#include <QGroupBox>

namespace orvalis {

using namespace Qt::StringLiterals;

frmnotes1::frmnotes1(Program& program)
    : ChromePanel(program, chromeRow(ChromeKind::Reminder))
    , ui(*this)
    , CommonDialog1(program.services.dialogs)
    , m_font(program.services.settings, u"RT1"_s, program.services.screen) {
    connectEntryArea();
    connectFind();
    connectLists();
    connectPlanner();
    connectClearMenu();
    connectKeys();
    tabToChromeAfter(*ui.rt2);
    connect(
        ui.MonthView1, &MonthView::DateClick, this,
        [this](QDate date) {
            ui.Label9->setCaption(shortDate(date));
            HoverReset();
        });
    connect(
        lblVreme, &Label::Change, this,
        [this] { ui.MonthView1->setToday(this->program().services.clock.date()); });
    connect(
        ui.imgNot, &Image::Click, this,
        [this] {
            if (StickerMaker* stickers = this->program().stickers)
                stickers->newFrmstick().form().Show();
        });
    m_unsaved = program.recovery.add([this] { return unsavedTexts(); });
}

void frmnotes1::onLoad() {
    loadDocuments();
    m_font.load(*ui.rt1);
    loadDateAndLists();
    layOutPages();
    for (const QString& hour : twoDigitNumbers(LastHour))
        ui.Combo1->AddItem(hour);
    for (const QString& minute : twoDigitNumbers(LastMinute))
        ui.Combo2->AddItem(minute);
    // With blanks, so that a reminder whose time was never touched does not fire.
    ui.Label5->setCaption(spacedTime(ui.Combo1->Text(), ui.Combo2->Text()));
    ui.Label9->setCaption(shortDate(ui.MonthView1->Value()));
    selectSubPanel(2);
    // Its font was set on the way, which is no change of the message.
    ui.rt1->SetTag({});
    ui.rt1->setFocus();
}

void frmnotes1::loadDocuments() {
    const App& app = program().services.app;
    resumeNext([&] { ui.rt1a->files().LoadFile(app.file(u"Vazno.rtf"_s)); },
               [&] { ui.rt2->files().LoadFile(app.file(u"weekly.rtf"_s)); });
}

void frmnotes1::loadDateAndLists() {
    resumeNext([this] { ui.MonthView1->setValue(program().services.clock.date()); },
               [this] { LoadTmp1(ui.MS1->grid()); }, [this] { LoadTmp2(ui.MS3->grid()); });
}

void frmnotes1::layOutPages() {
    layOut();
    // The layout scales the font of a box; what is typed into these two is to follow it.
    for (RichTextBox* box : {ui.rt1, ui.rtMs2})
        box->SetFontSize(box->font().pointSizeF());
    placeByPicture();
}

void frmnotes1::placeByPicture() {
    ui.MonthView1->move(ui.Frame2->x() + (ui.Frame2->width() - ui.MonthView1->width()) / 2,
                        ui.MonthView1->y());
    for (MSFlexGrid* grid : {ui.MS1, ui.MS3})
        grid->setColWidth(0, pixelsToTwips(grid->width()));
}

void frmnotes1::resizeEvent(QResizeEvent* event) {
    ChromePanel::resizeEvent(event);
    if (!isMinimized())
        placeByPicture();
}

void frmnotes1::onActivate() {
    ChromePanel::onActivate();
    goToToday();
}

void frmnotes1::goToToday() {
    resumeNext([this] { ui.MonthView1->Refresh(); },
               [this] { ui.MonthView1->setValue(program().services.clock.date()); },
               [this] { ui.Label9->setCaption(shortDate(ui.MonthView1->Value())); });
}

bool frmnotes1::exitExtra() {
    if (askToSave(u"Save changes before you quit?"_s))
        imgSave_Click();
    Sacremi();
    return true;
}

void frmnotes1::Sacremi() {
    m_font.store(*ui.rt1);
}

} // namespace orvalis
