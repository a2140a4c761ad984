// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/options_dialog.h"

#include "controls/combo_box.h"
#include "controls/label.h"
#include "core/dialog_controls.h"
#include "core/program.h"
#include "core/window_keys.h"
#include "platform/registry.h"
#include "runtime/app.h"
#include "runtime/clock_text.h"
#include "runtime/failure.h"
#include "runtime/format.h"
#include "widgets/gg_command.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QRadioButton>

#include <cstdlib>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

const QString RunKey = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString RunName = u"Orvalis"_s;

/// An option button takes false as well, which leaves its group with none chosen.
void setOption(QRadioButton& option, bool value) {
    QButtonGroup* group = option.group();
    group->setExclusive(value);
    option.setChecked(value);
    group->setExclusive(true);
}

/// The value of a check box: 0 empty, 1 ticked, 2 neither.
void setCheckValue(QCheckBox& check, int value) {
    switch (value) {
    case 0:
        check.setCheckState(Qt::Unchecked);
        break;
    case 1:
        check.setCheckState(Qt::Checked);
        break;
    case 2:
        check.setCheckState(Qt::PartiallyChecked);
        break;
    default:
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    }
}

int checkValue(const QCheckBox& check) {
    switch (check.checkState()) {
    case Qt::Unchecked:
        return 0;
    case Qt::Checked:
        return 1;
    case Qt::PartiallyChecked:
        return 2;
    }
    Q_UNREACHABLE();
}

Integer16 wholeNumber(const QVariant& setting) {
    return Integer16::fromText(setting.toString());
}

} // namespace

QStringList clockFormatList(QTime time) {
    // A time that went through the short text has lost its seconds.
    const QTime longTime(time.hour(), time.minute(), time.second());
    const QTime shortTime(time.hour(), time.minute());
    return {
        Format(longTime, u"hh : mm : ss"),  Format(longTime, u"h : m : s"),
        Format(longTime, u"hh:mm:ss AMPM"), Format(longTime, u"hh:mm AMPM"),
        Format(longTime, u"hh:mm AMPM"),    Format(shortTime, u"hh : mm"),
        Format(shortTime, u"hh : mm : ss"), Format(shortTime, u"h : m"),
        Format(longTime, u"h / m / s"),     Format(longTime, u"hh/mm/ss AMPM"),
        Format(longTime, u"hh / mm AMPM"),  Format(shortTime, u"hh / mm"),
        Format(shortTime, u"hh / mm / ss"),
    };
}

frmOptions::frmOptions(Program& program)
    : Form(u"frmOptions"_s, Qt::Dialog)
    , m_program(program) {
    setWindowTitle(u"Orvalis Options"_s);
    setFixedSize(246, 267);
    setFont(dialogFont());
    makePlayerFrame();
    makeStartFrame();
    makeSortFrame();
    makeTimeFrame();
    makeButtons();
}

void frmOptions::makePlayerFrame() {
    QGroupBox* frame = dialogFrame(*this, u"Frame3"_s, u"Set Media Player"_s, {8, 8, 230, 58});
    auto* group = new QButtonGroup(frame);
    m_Option1 = {
        dialogOption(*frame, u"Option1(0)"_s, u"Use &Orvalis Player"_s, {12, 17, 206, 17}),
        dialogOption(*frame, u"Option1(1)"_s, u"Use &Default Player"_s, {12, 36, 206, 17})};
    for (QRadioButton* option : m_Option1)
        group->addButton(option);
}

void frmOptions::makeStartFrame() {
    QGroupBox* frame = dialogFrame(*this, u"Frame2"_s, u"Start Up"_s, {8, 73, 230, 42});
    m_Check1 = new QCheckBox(u"&Load with Windows and stay Minimized"_s, frame);
    m_Check1->setObjectName(u"Check1"_s);
    m_Check1->setGeometry(12, 18, 214, 17);
}

void frmOptions::makeSortFrame() {
    QGroupBox* frame = dialogFrame(*this, u"Frame4"_s, u"Address Book"_s, {8, 122, 230, 42});
    auto* label = new Label(u"Label1"_s, u"Sort Items:"_s, frame);
    label->setGeometry(12, 19, 62, 16);
    auto* group = new QButtonGroup(frame);
    m_optSort = {dialogOption(*frame, u"optSort(0)"_s, u"by &First"_s, {78, 18, 66, 17}),
                 dialogOption(*frame, u"optSort(1)"_s, u"by &Second"_s, {148, 18, 76, 17})};
    for (QRadioButton* option : m_optSort)
        group->addButton(option);
}

void frmOptions::makeTimeFrame() {
    QGroupBox* frame = dialogFrame(*this, u"Frame6"_s, u"Display Time Format"_s, {8, 171, 230, 54});
    m_lstvreme = new ComboBox(u"lstvreme"_s, frame, ComboBox::Style::DropDownList);
    m_lstvreme->setGeometry(12, 20, 206, 23);
    m_lstvreme->setAccessibleName(frame->title());
    m_lstvreme->setMaxVisibleItems(ClockFormatCount);
    connect(m_lstvreme, &ComboBox::Click, this, &frmOptions::lstvremeClick);
}

void frmOptions::makeButtons() {
    m_imgOK = dialogButton(*this, u"imgOK"_s, u"OK"_s, u"ok"_s, {79, 232, 76, 26});
    m_imgCanc = dialogButton(*this, u"imgCanc"_s, u"Cancel"_s, u"cancel"_s, {162, 232, 76, 26});
    connect(m_imgOK, &GGCommand::Click, this, &frmOptions::okClick);
    connect(m_imgCanc, &GGCommand::Click, this, &Form::unloadRequested);
}

bool frmOptions::builtInPlayer() const {
    return m_Option1[0]->isChecked();
}

bool frmOptions::sortByFirst() const {
    return m_optSort[0]->isChecked();
}

void frmOptions::onLoad() {
    const Registry& settings = m_program.services.settings;
    const auto flag = [&settings](const QString& section, const QString& name,
                                  const QString& otherwise) {
        return settingFlag(settings.setting(section, name, otherwise));
    };
    int& format = m_program.state.timeFormatIndex;
    resumeNext([this] { m_lstvreme->Clear(); },
               [this] {
                   for (const QString& entry : clockFormatList(m_program.services.clock.time()))
                       m_lstvreme->AddItem(entry);
               },
               [&] { setOption(*m_Option1[0], flag(u"Media"_s, u"Player1"_s, u"False"_s)); },
               [&] { setOption(*m_Option1[1], flag(u"Media"_s, u"Player2"_s, u"True"_s)); },
               [&] {
                   setCheckValue(*m_Check1,
                                 wholeNumber(settings.setting(u"Reg"_s, u"Start"_s, u"0"_s)));
               },
               [&] { setOption(*m_optSort[0], flag(u"Reg"_s, u"1st"_s, u"True"_s)); },
               [&] { setOption(*m_optSort[1], flag(u"Reg"_s, u"2nd"_s, u"False"_s)); },
               [&] { format = wholeNumber(settings.setting(u"Reg"_s, u"Vreme"_s, u"0"_s)); },
               [&] { m_lstvreme->setText(m_lstvreme->List(format)); });
    // Of a group of options the keyboard comes to the chosen one; where none is, to the first.
    m_Option1[m_Option1[1]->isChecked() ? 1 : 0]->setFocus();
}

void frmOptions::lstvremeClick() {
    m_selected = m_lstvreme->ListIndex();
    m_lstvreme->setText(m_lstvreme->List(m_selected));
}

void frmOptions::okClick() {
    Registry& settings = m_program.services.settings;
    if (checkValue(*m_Check1) == 1)
        settings.RunKeySet(Hive::LocalMachine, RunKey, RunName,
                           m_program.services.app.executablePath());
    else
        settings.RunKeyDelete(RunName);
    m_program.state.timeFormatIndex = m_selected;
    writeSettings();
    emit unloadRequested();
}

void frmOptions::writeSettings() const {
    Registry& settings = m_program.services.settings;
    settings.putSetting(u"Media"_s, u"Player1"_s, m_Option1[0]->isChecked());
    settings.putSetting(u"Media"_s, u"Player2"_s, m_Option1[1]->isChecked());
    settings.putSetting(u"Reg"_s, u"Start"_s, std::abs(checkValue(*m_Check1)));
    settings.putSetting(u"Reg"_s, u"1st"_s, m_optSort[0]->isChecked());
    settings.putSetting(u"Reg"_s, u"2nd"_s, m_optSort[1]->isChecked());
    settings.putSetting(u"Reg"_s, u"Vreme"_s, m_program.state.timeFormatIndex);
}

void frmOptions::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        m_imgCanc->press();
    else if (isEnter(*event))
        m_imgOK->press();
    else
        Form::keyPressEvent(event);
}

} // namespace orvalis
