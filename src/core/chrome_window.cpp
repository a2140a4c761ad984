// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/chrome_window.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/mouse_numbers.h"
#include "controls/window_drag.h"
#include "core/alarm_label.h"
#include "core/clock_label.h"
#include "core/program.h"
#include "core/resize_form.h"
#include "core/skin_picture.h"
#include "core/window_shape.h"
#include "platform/registry.h"
#include "platform/screen.h"
#include "runtime/aligned_timer.h"
#include "runtime/clock_text.h"
#include "runtime/failure.h"
#include "runtime/format.h"
#include "runtime/twips.h"
#include "skin/type.h"

#include <QMouseEvent>

namespace orvalis {

using namespace Qt::StringLiterals;

ChromeWindow::ChromeWindow(Program& program, const ChromeRow& row)
    : Form(row.name, Qt::Window | Qt::FramelessWindowHint)
    , m_program(program)
    , m_row(row)
    , m_drag(new WindowDrag(*this)) {
    setWindowTitle(u"Orvalis"_s);
    setAttribute(Qt::WA_TranslucentBackground);
    setMouseTracking(true);
    background = new Image(row.background, this);
    background->setPicture(skinPicture(row.backgroundPicture));
    behaveAsBackground(background);

    const ChromeLayout& layout = chromeLayout(row.kind);
    makeTriple(m_triples[0], u"imgMini"_s, u"mini"_s, u"Minimize to Tray"_s, layout.mini);
    makeTriple(m_triples[1], u"imgExit"_s, u"exit"_s, u"Close"_s, layout.exit);
    makeTriple(m_triples[2], u"imgHelp"_s, u"help"_s, row.helpToolTip, layout.help);
    imgMini = m_triples[0].shown;
    imgExit = m_triples[1].shown;
    imgHelp = m_triples[2].shown;
    connect(imgMini, &Image::Click, this, &ChromeWindow::miniClick);
    connect(imgExit, &Image::Click, this, &ChromeWindow::exitClick);
    connect(imgHelp, &Image::MouseDown, this, [this](int button) {
        if (button != LeftButton || !m_program.windows.knows<PopupMenus>())
            return;
        // The menu takes the pointer away without a word.
        HoverReset();
        m_program.windows.get<PopupMenus>().PopupMenu(u"mnuhelp"_s);
    });

    makeClock();
    makeAlarmDisplay();
    makePanelLabels();
    for (int i = 0; i < 2; ++i) {
        m_imgIcon.at(i) = new Image(u"imgIcon(%1)"_s.arg(i), this);
        m_imgIcon.at(i)->hide();
        m_imgIcon.at(i)->setPicture(skinPicture(i == 0 ? u"tray_idle"_s : u"tray_armed"_s));
    }
    if (program.makeTrayOwner)
        m_tray = program.makeTrayOwner(*this);
}

ChromeWindow::~ChromeWindow() = default;

void ChromeWindow::behaveAsBackground(Image* picture) {
    connect(picture, &Image::MouseMove, this, &ChromeWindow::HoverReset);
    connect(picture, &Image::MouseDown, this, [this, picture](int button, int, float x, float y) {
        if (button == LeftButton)
            m_drag->start(Qt::LeftButton, picture->mapToGlobal(QPointF(x, y)).toPoint());
    });
}

void ChromeWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_drag->start(Qt::LeftButton, event->globalPosition().toPoint());
}

void ChromeWindow::mouseMoveEvent(QMouseEvent*) {
    HoverReset();
}

void ChromeWindow::hover(const Triple& triple) {
    triple.shown->setPicture(triple.hover->Picture());
    for (const Triple& other : m_triples)
        if (&other != &triple && other.shown->Picture() == other.hover->Picture())
            other.shown->setPicture(other.normal->Picture());
}

void ChromeWindow::HoverReset() {
    for (const Triple& triple : m_triples)
        if (triple.shown->Picture() == triple.hover->Picture())
            triple.shown->setPicture(triple.normal->Picture());
}

void ChromeWindow::updateClock() {
    endSilently([this] {
        lblVreme->setCaption(
            ClockText(m_program.state.timeFormatIndex, m_program.services.clock.time()));
    });
}

void ChromeWindow::showDateInClock() {
    lblVreme->setCaption(Format(m_program.services.clock.now(), u"dddd, mmmm dd, yyyy"));
}

void ChromeWindow::showEvent(QShowEvent* event) {
    wearShape(*this, m_row.backgroundPicture, m_program.services.windowCutter);
    updateClock();
    m_clockTimer->start();
    Form::showEvent(event);
}

void ChromeWindow::hideEvent(QHideEvent* event) {
    m_clockTimer->stop();
    // The pointer is elsewhere when the window comes back.
    HoverReset();
    Form::hideEvent(event);
}

void ChromeWindow::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    if (!isMinimized())
        takeSizeOfBackground();
}

void ChromeWindow::layOut() {
    lblVreme->useClockFont(skin::points::Clock);
    clsResize(m_program.services.screen.GetSystemMetrics(0))
        .ResizeForm(*this, m_row.designWidth, pixelsToTwips(background->width()), background,
                    imgStop, imgSet);
    takeSizeOfBackground();
}

void ChromeWindow::takeSizeOfBackground() {
    setFixedSize(background->size());
}

void ChromeWindow::onActivate() {
    resumeNext([this] {
        if (m_program.state.alarmArmed) {
            if (!m_alarmShownHere)
                showAlarm();
        } else {
            AlarmOff();
        }
    });
}

void ChromeWindow::showAlarm() {
    lblAlarm->setCaption(m_program.state.alarmTimeText);
    lblAlarm->setVisible(true);
    showBell(true);
    m_alarmShownHere = true;
}

void ChromeWindow::AlarmOff() {
    showBell(false);
    lblAlarm->setCaption({});
    if (m_tray)
        m_tray->TrayReset();
    m_program.state.alarmArmed = false;
    m_alarmShownHere = false;
}

void ChromeWindow::resetTray() {
    if (m_program.state.trayActive && m_tray)
        m_tray->TrayReset();
}

void ChromeWindow::stopClick() {
    showBell(false);
    lblAlarm->setCaption({});
    m_program.state.alarmArmed = false;
    m_alarmShownHere = false;
}

/// One bell stands in for the other, for the keyboard too.
void ChromeWindow::showBell(bool armed) {
    Image& shown = armed ? *imgStop : *imgSet;
    Image& hidden = armed ? *imgSet : *imgStop;
    shown.setVisible(true);
    shown.takeFocusFrom(hidden);
    hidden.setVisible(false);
}

void ChromeWindow::alarmCaptionChanged() {
    const QString caption = lblAlarm->Caption();
    m_program.state.alarmCaptionMirror = caption;
    showBell(!caption.isEmpty());
    // Where the alarm stands below the clock on the same glass, the clock makes room for it. Beside
    // it the two can share a column of pixels, once the layout has rounded their places.
    const QRect alarm = lblAlarm->geometry();
    const bool below = lblVreme->geometry().contains(alarm.center());
    lblVreme->setContentsMargins(0, 0, 0, below && !caption.isEmpty() ? alarm.height() : 0);
}

QString ChromeWindow::alarmShown() const {
    return lblAlarm->Caption();
}

Image* ChromeWindow::trayIcon(int index) const {
    return m_imgIcon.at(index);
}

void ChromeWindow::miniClick() {
    if (m_tray)
        run(m_row.minimising);
}

void ChromeWindow::exitClick() {
    if (!lblAlarm->Caption().isEmpty()) {
        m_program.boxes().MsgBox(u"The alarm is set.\nMinimaze program to system tray, or\n"
                                 "disable alarm before you quit."_s,
                                 MsgFlags::InformationIcon);
        return;
    }
    if (!exitExtra())
        return;
    if (m_program.state.StickerCount > 0) {
        miniClick();
        return;
    }
    if (settingEquals(m_program.services.settings.setting(u"Reg"_s, u"Start"_s, u"0"_s), 1)) {
        miniClick();
        return;
    }
    m_program.ExitProgram();
}

void ChromeWindow::run(const std::vector<ChromeStep>& steps) {
    for (const ChromeStep step : steps) {
        switch (step) {
        case ChromeStep::HideWindow:
            Hide();
            break;
        case ChromeStep::TrayBuild:
            m_tray->TrayBuild();
            break;
        case ChromeStep::TimerOff:
            m_program.windows.get<StartWindow>().setTimer23Enabled(false);
            break;
        case ChromeStep::NoteWindow:
            m_program.state.minimisedFrom = static_cast<int>(m_row.kind);
            break;
        case ChromeStep::UnloadLetters:
            m_program.windows.unload<LettersWindow>();
            break;
        case ChromeStep::UnloadPrint:
            m_program.windows.unload<PrintWindow>();
            break;
        }
    }
}

namespace {

/// The form behind a kind of window, or none while nobody makes it.
template <class Role>
Form* formOf(Windows& windows) {
    return windows.knows<Role>() ? &windows.get<Role>().form() : nullptr;
}

Form* formOf(Windows& windows, ChromeKind kind) {
    switch (kind) {
    case ChromeKind::Main:
        return formOf<MainWindow>(windows);
    case ChromeKind::Reminder:
        return formOf<ReminderPanel>(windows);
    case ChromeKind::Notes:
        return formOf<NotesPanel>(windows);
    case ChromeKind::Address:
        return formOf<AddressPanel>(windows);
    case ChromeKind::Password:
        return formOf<PasswordPanel>(windows);
    }
    Q_UNREACHABLE();
}

} // namespace

void ChromeWindow::openPanel(ChromeKind target) {
    Form* form = formOf(m_program.windows, target);
    if (form == nullptr)
        return;
    form->takePlaceOf(*this);
    if (m_row.leaving.empty()) {
        form->Show();
        Hide();
    } else {
        run(m_row.leaving);
        form->Show();
    }
}

} // namespace orvalis
