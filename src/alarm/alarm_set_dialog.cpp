// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_set_dialog.h"

#include "controls/combo_box.h"
#include "controls/common_dialog.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/rich_text_box.h"
#include "core/dialog_controls.h"
#include "core/mouse_pointer.h"
#include "core/program.h"
#include "core/window_keys.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "runtime/format.h"
#include "runtime/time_parts.h"
#include "skin/type.h"
#include "widgets/gg_command.h"

#include <QGroupBox>
#include <QKeyEvent>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr int PlainText = 1;

void fillWithTwoDigits(ComboBox& box, int last) {
    for (const QString& number : twoDigitNumbers(last))
        box.AddItem(number);
}

ComboBox* timeBox(QWidget& frame, const QString& name, const QString& spokenName,
                  const QRect& place) {
    auto* box = new ComboBox(name, &frame);
    box->setGeometry(place);
    box->setText(u"00"_s);
    box->setAccessibleName(spokenName);
    return box;
}

Label* caption(QWidget& frame, const QString& name, const QString& text, const QRect& place) {
    auto* label = new Label(name, text, &frame);
    label->setGeometry(place);
    return label;
}

} // namespace

frmAlSet::frmAlSet(Program& program)
    : Form(u"frmAlSet"_s, Qt::Dialog)
    , m_program(program) {
    setWindowTitle(u"Alarm Set"_s);
    setFixedSize(271, 278);
    setFont(dialogFont());
    QGroupBox* frame =
        dialogFrame(*this, u"Frame1"_s, u"Set alarm time, sound or message"_s, {8, 8, 255, 229});
    makeTimeControls(*frame);
    makeMessageControls(*frame);
    m_imgOK = dialogButton(*this, u"imgOK"_s, u"OK"_s, u"ok"_s, {104, 244, 76, 26});
    m_imgCanc = dialogButton(*this, u"imgCanc"_s, u"Cancel"_s, u"cancel"_s, {187, 244, 76, 26});
    connect(m_imgOK, &GGCommand::Click, this, &frmAlSet::okClick);
    connect(m_imgCanc, &GGCommand::Click, this, &Form::unloadRequested);
    // In the message Enter begins a line.
    pressOnKey(*this, Qt::CTRL | Qt::Key_Return, *m_imgOK);
}

void frmAlSet::makeTimeControls(QWidget& frame) {
    caption(frame, u"Label1"_s, u"Hour"_s, {14, 19, 60, 15});
    caption(frame, u"Label2"_s, u"Min"_s, {84, 19, 60, 15});
    m_Combo1 = timeBox(frame, u"Combo1"_s, u"Hour"_s, {14, 35, 60, 23});
    m_Combo2 = timeBox(frame, u"Combo2"_s, u"Minute"_s, {84, 35, 60, 23});
    m_Label5 = caption(frame, u"Label5"_s, u"00:00:00"_s, {150, 33, 96, 26});
    m_Label5->setAlignment(Qt::AlignCenter);
    m_Label5->setFont(skin::font(skin::points::ChosenTime, true));
    connect(
        m_Label5, &Label::Change, this,
        [this] { setWindowTitle(u"Alarm Time Set:  "_s + m_Label5->Caption()); });
    connect(
        m_Combo1, &ComboBox::Change, this, [this] { timeTyped(*m_Combo1, LastHour); });
    connect(m_Combo2, &ComboBox::Change, this, [this] { timeTyped(*m_Combo2, LastMinute); });
    connect(m_Combo1, &ComboBox::Click, this, &frmAlSet::showChoice);
    connect(m_Combo2, &ComboBox::Click, this, &frmAlSet::showChoice);
}

void frmAlSet::makeMessageControls(QWidget& frame) {
    caption(frame, u"Label3"_s, u"Select multimedia file for alarm notification:"_s,
            {14, 67, 234, 15});
    GGCommand* media = dialogButton(frame, u"imgMed"_s, u"Select"_s, u"media"_s, {14, 84, 90, 25});
    connect(media, &GGCommand::Click, this, &frmAlSet::chooseMedia);
    pressOnKey(*this, QKeySequence::Open, *media);
    caption(frame, u"Label4"_s, u"Alarm message"_s, {14, 117, 228, 15});
    m_rt1 = new RichTextBox(&frame);
    m_rt1->setObjectName(u"rt1"_s);
    m_rt1->setGeometry(14, 133, 227, 84);
    m_rt1->setAccessibleName(u"Alarm message"_s);
    m_rt1->setTabChangesFocus(true);
}

void frmAlSet::onLoad() {
    fillWithTwoDigits(*m_Combo1, LastHour);
    fillWithTwoDigits(*m_Combo2, LastMinute);
    showChoice();
    m_program.state.alarmMediaFile.clear();
}

void frmAlSet::timeTyped(const ComboBox& box, int limit) {
    if (box.Text().isEmpty())
        return;
    if (isTimePart(box.Text(), limit))
        showChoice();
    else
        m_program.boxes().MsgBox(u"Invalid input for time."_s, MsgFlags::StopIcon);
}

void frmAlSet::showChoice() {
    m_Label5->setCaption(spacedTime(m_Combo1->Text(), m_Combo2->Text()));
}

void frmAlSet::chooseMedia() {
    const auto failure = firstFailure([this] {
        setMousePointer(MousePointer::Hourglass);
        if (m_program.windows.get<OptionsWindow>().builtInPlayer())
            return;
        CommonDialog CD1(m_program.services.dialogs);
        CD1.CancelError = false;
        CD1.Filter = u"Media Files (*.wav;*.mid;*.mp3;*.m3u)|*.wav;*.mid;*.mp3;*.m3u|"
                     "All Files (*.*)|*.*"_s;
        CD1.FileName.clear();
        CD1.ShowOpen();
        // A cancelled dialog leaves no name, and is told in the same words.
        if (FileExists(CD1.FileName))
            m_program.state.alarmMediaFile = CD1.FileName;
        else
            m_program.boxes().MsgBox(u"File not found."_s, MsgFlags::StopIcon);
    });
    if (failure.has_value())
        m_program.boxes().MsgBox(failure->description(), MsgFlags::StopIcon);
    setMousePointer(MousePointer::Default);
}

void frmAlSet::okClick() {
    const auto failure = firstFailure([this] { arm(); });
    if (failure.has_value())
        m_program.boxes().MsgBox(failure->description(), MsgFlags::InformationIcon);
    setMousePointer(MousePointer::Default);
}

void frmAlSet::arm() {
    setMousePointer(MousePointer::Hourglass);
    if (m_rt1->Text().isEmpty())
        m_rt1->SetText(u"Message not set"_s);
    for (ComboBox* box : {m_Combo1, m_Combo2})
        box->setText(twoDigits(box->Text()));
    SharedState& state = m_program.state;
    state.alarmTimeText = m_Combo1->Text() + u':' + m_Combo2->Text() + u":00"_s;
    state.alarmTime = TimeValue(state.alarmTimeText);
    m_rt1->SetText(u"Alarm time: "_s + state.alarmTimeText + u"\r\n"_s + m_rt1->Text());
    m_rt1->files().SaveFile(m_program.services.app.file(u"Msg.txt"_s), PlainText);
    state.alarmArmed = true;
    emit unloadRequested();
}

void frmAlSet::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        m_imgCanc->press();
    else if (isEnter(*event))
        m_imgOK->press();
    else
        Form::keyPressEvent(event);
}

} // namespace orvalis
