// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/start_window.h"

#include "controls/image.h"
#include "controls/label.h"
#include "controls/message_boxes.h"
#include "controls/ms_flex_grid.h"
#include "core/program.h"
#include "platform/registry.h"
#include "runtime/aligned_timer.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "runtime/twips.h"

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

constexpr int OffScreenLeft = -1555; // twips

} // namespace

frmStart::frmStart(Program& program, bool previousInstance)
    : Form(u"frmStart"_s)
    , m_program(program)
    , m_previousInstance(previousInstance)
    , m_CommonDialog1(program.services.dialogs)
    , m_MS2(new MSFlexGrid(this))
    , m_Image1(new Image(u"Image1"_s, this))
    , m_lblVreme(new Label(u"lblVreme"_s, {}, this))
    , m_lblAlarm(new Label(u"lblAlarm"_s, {}, this))
    , m_Timer23(new AlignedTimer(program.services.clock, this)) {
    setWindowTitle(u"Orvalis"_s);
    // It counts as shown, but no desktop need hear of it: some would pull it onto the screen, and
    // most would list it among the user's windows.
    setAttribute(Qt::WA_DontShowOnScreen);
    resize(100, 100);
    m_MS2->setObjectName(u"MS2"_s);
    m_MS2->hide();
    m_Image1->hide();
    m_lblVreme->hide();
    m_lblAlarm->hide();
    m_Timer23->setObjectName(u"Timer23"_s);
    connect(m_Timer23, &AlignedTimer::tick, this, &frmStart::timer23);
}

frmStart::~frmStart() = default;

void frmStart::onLoad() {
    m_Timer23->start();
    QVariant start;
    resumeNext(
        [this] {
            if (!m_previousInstance)
                return;
            m_program.boxes().MsgBox(m_program.services.app.EXEName() + u" is already running!"_s,
                                     MsgFlags::ExclamationIcon, u"Orvalis Warning"_s);
            m_program.end();
        },
        [&] { start = m_program.services.settings.setting(u"Reg"_s, u"Start"_s, u"0"_s); },
        [&] {
            MainWindow& window = m_program.windows.get<MainWindow>();
            if (settingEquals(start, 1))
                window.Pocni();
            else
                window.form().Show();
        });
}

void frmStart::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    move(twipsToPixels(OffScreenLeft), y());
}

void frmStart::setTimer23Enabled(bool enabled) {
    if (enabled == m_Timer23->isActive())
        return;
    if (enabled)
        m_Timer23->start();
    else
        m_Timer23->stop();
}

bool frmStart::timer23Enabled() const {
    return m_Timer23->isActive();
}

void frmStart::timer23() {
    endSilently([this] {
        if (m_program.tick != nullptr)
            m_program.tick->run(*this);
    });
}

void frmStart::showClock(const QString& text) {
    m_lblVreme->setCaption(text);
}

void frmStart::disarm() {
    m_lblAlarm->setCaption({});
    m_program.state.alarmArmed = false;
}

} // namespace orvalis
