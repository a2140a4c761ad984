// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "stickers/sticker_form.h"

#include "controls/edit_menu.h"
#include "controls/image.h"
#include "controls/mouse_numbers.h"
#include "controls/rich_text_box.h"
#include "controls/selection_font.h"
#include "controls/title_line.h"
#include "controls/window_drag.h"
#include "core/button_look.h"
#include "core/clock_label.h"
#include "core/program.h"
#include "core/resize_form.h"
#include "core/skin_picture.h"
#include "core/top_most.h"
#include "core/window_keys.h"
#include "core/window_shape.h"
#include "platform/screen.h"
#include "runtime/aligned_timer.h"
#include "runtime/clock_text.h"
#include "runtime/format.h"
#include "runtime/twips.h"
#include "skin/ink.h"
#include "skin/palette.h"
#include "skin/skin.h"
#include "skin/type.h"
#include "widgets/gg_command.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int ClientWidth = 2910; // twips
/// The width that stands for the sticker's own in its layout, on both sides of the ratio: so the
/// geometry stays and only the fonts follow the screen.
constexpr int LayoutWidth = 3060;
/// New stickers lie fanned out, so that one that pops up leaves the head of the one before in
/// sight; with this many the fan begins anew.
constexpr int Fan = 8;
constexpr QPoint FanStep(24, 28);

} // namespace

StickerForm::StickerForm(Program& program, const QString& name, const QString& designCaption,
                         int height)
    : Form(name, Qt::Window | Qt::FramelessWindowHint)
    , m_program(program)
    , m_CommonDialog1(program.services.dialogs)
    , m_drag(new WindowDrag(*this)) {
    setWindowTitle(designCaption);
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(twipsToPixels(ClientWidth), twipsToPixels(height));

    m_imgOff = makePin(u"imgOff"_s, u"pin_on"_s, u"Let other windows cover this sticker"_s);
    m_imgOn = makePin(u"imgOn"_s, u"pin_off"_s, u"Keep this sticker on top"_s);
    m_imgOn->hide();
    connect(
        m_imgOff, &Image::Click, this, [this] { pin(false); });
    connect(m_imgOn, &Image::Click, this, [this] { pin(true); });

    makeTitle();
    GGCommand* add = makeButton(u"Image1"_s, u"sticker_new"_s, u"New Sticker"_s, {118, 3, 22, 18});
    connect(add, &GGCommand::Click, this, [this] { m_program.stickers->newXn().form().Show(); });
    GGCommand* font = makeButton(u"Image3"_s, u"sticker_font"_s, u"Font"_s, {142, 3, 22, 18});
    connect(font, &GGCommand::Click, this, &StickerForm::chooseFont);
    GGCommand* close = makeButton(u"Image2"_s, u"close"_s, u"Close"_s, {166, 3, 22, 18});
    // Its cross is drawn like the signs beside it, and hides the letter that stands for it.
    close->setCaption(u"x"_s);
    close->setCaptionYOffset(close->height());
    connect(close, &GGCommand::Click, this, &StickerForm::unloadRequested);
    makeText();
    makeClock();
    m_unsaved = m_program.recovery.add([this] { return unsavedText(); });
    pressOnKey(*this, QKeySequence::New, *add);
    pressOnKey(*this, Qt::CTRL | Qt::Key_D, *font);
    pressOnKey(*this, Qt::CTRL | Qt::Key_W, *close);
}

GGCommand* StickerForm::makeButton(const QString& name, const QString& picture,
                                   const QString& toolTip, const QRect& place) {
    auto* button = new GGCommand(name, this);
    button->setGeometry(place);
    button->setCaption({});
    button->setToolTip(toolTip);
    wearLook(*button, skin::StickerButton);
    // Under the pointer the button rises out of green paper.
    QPalette green = button->palette();
    green.setColor(QPalette::Dark, QColor(skin::colour::StickerEdge));
    button->setPalette(green);
    if (!picture.isEmpty()) {
        button->setPicture(skinPicture(picture));
        button->setPictureAlignment(4);
    }
    return button;
}

Image* StickerForm::makePin(const QString& name, const QString& picture,
                            const QString& spokenName) {
    auto* image = new Image(name, this);
    image->setGeometry(6, 3, 18, 18);
    image->setPicture(skinPicture(picture));
    image->setHoverPicture(skinPicture(picture + u"_hover"_s));
    image->setAccessibleName(spokenName);
    image->setTabStop(true);
    return image;
}

void StickerForm::makeTitle() {
    m_txtLabel1 = new QLineEdit(u"Title"_s, this);
    m_txtLabel1->setObjectName(u"txtLabel1"_s);
    m_txtLabel1->setGeometry(26, 3, 88, 18);
    m_txtLabel1->setFrame(false);
    m_txtLabel1->setProperty("skinSurface", u"paper"_s);
    m_txtLabel1->setFont(skin::font(skin::points::Body, true));
    m_txtLabel1->setAccessibleName(u"Title"_s);
    skin::setInk(*m_txtLabel1, skin::colour::StickerInk, QPalette::Text);
    connect(m_txtLabel1, &QLineEdit::textChanged, this, &StickerForm::setWindowTitle);
    makeTitleLine(*m_txtLabel1);
    giveEditMenu(*m_txtLabel1);
}

void StickerForm::makeText() {
    m_Text1 = new RichTextBox(this);
    m_Text1->setObjectName(u"Text1"_s);
    m_Text1->setGeometry(6, 27, 182, 98);
    m_Text1->setProperty("skinSurface", u"paper"_s);
    m_Text1->setFont(skin::font(skin::points::Body));
    m_Text1->setAccessibleName(u"Note"_s);
    m_Text1->setTabChangesFocus(true);
}

void StickerForm::makeClock() {
    m_lblVreme = new ClockLabel(u"lblVreme"_s, this);
    m_lblVreme->setGeometry(6, 126, 181, 17);
    m_lblVreme->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_lblVreme->setFont(skin::font(skin::points::Body));
    m_lblVreme->setCursor(Qt::SizeAllCursor);
    skin::setInk(*m_lblVreme, skin::colour::StickerQuiet);
    connect(
        m_lblVreme, &ClockLabel::MouseDown, this,
        [this](int button, int, float x, float y) {
            m_drag->start(mouseButton(button), m_lblVreme->mapToGlobal(QPointF(x, y).toPoint()));
        });
    connect(m_lblVreme, &ClockLabel::MouseMove, this, [this] {
        m_lblVreme->setToolTip(Format(m_program.services.clock.now(), u"dddd, mmmm dd, yyyy"));
    });
    m_Timer1 = new AlignedTimer(m_program.services.clock, this);
    m_Timer1->setObjectName(u"Timer1"_s);
    connect(m_Timer1, &AlignedTimer::tick, this, &StickerForm::updateClock);
}

void StickerForm::onLoad() {
    SetTopMost(*this);
    clsResize(m_program.services.screen.GetSystemMetrics(0))
        .ResizeForm(*this, LayoutWidth, LayoutWidth);
    m_CommonDialog1.Color = 0xFFFFFF;
    ++m_program.state.StickerNo;
    ++m_program.state.StickerCount;
    setWindowTitle(u"Sticker No"_s + QString::number(m_program.state.StickerNo));
    m_txtLabel1->setText(windowTitle());
    setFirstPlaceOff(FanStep * ((m_program.state.StickerNo - 1) % Fan));
    // What is typed into a new sticker is its note.
    m_Text1->setFocus();
}

void StickerForm::onUnload() {
    emit unloadRequested();
    --m_program.state.StickerCount;
}

std::vector<UnsavedText> StickerForm::unsavedText() const {
    if (!isLoaded() || m_Text1->Text().isEmpty())
        return {};
    return {{u"Sticker \"%1\""_s.arg(windowTitle()), m_Text1->TextRTF()}};
}

void StickerForm::pin(bool onTop) {
    const bool byKey = m_imgOff->hasFocus() || m_imgOn->hasFocus();
    m_imgOff->setVisible(onTop);
    m_imgOn->setVisible(!onTop);
    // The pin stays where the keys go.
    if (byKey)
        (onTop ? m_imgOff : m_imgOn)->setFocus();
    if (onTop)
        SetTopMost(*this);
    else
        ClearTopMost(*this);
}

void StickerForm::updateClock() {
    m_lblVreme->setCaption(
        ClockText(m_program.state.timeFormatIndex, m_program.services.clock.time()));
}

void StickerForm::chooseFont() {
    if (chooseFontOfSelection(m_CommonDialog1, *m_Text1))
        m_Text1->setFocus();
}

void StickerForm::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, skin::pixmap(u"sticker_background", size(), devicePixelRatioF()));
}

void StickerForm::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_drag->start(event->button(), event->globalPosition().toPoint());
}

void StickerForm::showEvent(QShowEvent* event) {
    wearShape(*this, u"sticker_background"_s, m_program.services.windowCutter);
    Form::showEvent(event);
    updateClock();
    m_Timer1->start();
}

void StickerForm::hideEvent(QHideEvent* event) {
    m_Timer1->stop();
    Form::hideEvent(event);
}

frmstick::frmstick(Program& program)
    : StickerForm(program, u"frmstick"_s, u"Sticker"_s, 2205) {}

xn::xn(Program& program)
    : StickerForm(program, u"xn"_s, u"Form1"_s, 2220) {}

} // namespace orvalis
