// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
//
// How a window with the chrome makes the controls of it.
#include "controls/image.h"
#include "controls/label.h"
#include "core/alarm_label.h"
#include "core/chrome_window.h"
#include "core/clock_label.h"
#include "core/picture_button.h"
#include "core/program.h"
#include "core/skin_picture.h"
#include "runtime/aligned_timer.h"
#include "skin/ink.h"
#include "skin/palette.h"
#include "skin/type.h"

namespace orvalis {

using namespace Qt::StringLiterals;

void ChromeWindow::makeTriple(Triple& triple, const QString& name, const QString& picture,
                              const QString& toolTip, const QRect& place) {
    const auto make = [&](const QString& suffix, const QString& pictureName) {
        auto* image = new Image(name + suffix, this);
        image->setGeometry(place);
        image->setPicture(skinPicture(pictureName));
        return image;
    };
    triple.normal = make(u"b"_s, picture);
    triple.normal->hide();
    triple.hover = make(u"a"_s, picture + u"_hover"_s);
    triple.hover->hide();
    triple.shown = new Image(name, this);
    triple.shown->setGeometry(place);
    triple.shown->setPicture(triple.normal->Picture());
    triple.shown->setToolTip(toolTip);
    triple.shown->setTabStop(true);
    connect(triple.shown, &Image::MouseMove, this, [this, &triple] { hover(triple); });
    // A quick pointer goes from the button straight to another control or out of the window, over
    // no point of the form.
    connect(triple.shown, &Image::MouseExit, this, &ChromeWindow::HoverReset);
}

void ChromeWindow::makeClock() {
    const ChromeLayout& layout = chromeLayout(m_row.kind);
    lblVreme = new ClockLabel(u"lblVreme"_s, this);
    lblVreme->setGeometry(layout.clock);
    lblVreme->setAlignment(layout.clockAlignment);
    QFont clockFont = skin::font(skin::points::Clock);
    clockFont.setLetterSpacing(QFont::AbsoluteSpacing, layout.clockSpacing);
    lblVreme->setFont(clockFont);
    skin::setInk(*lblVreme, skin::colour::GlassText);
    connect(lblVreme, &Label::MouseMove, this, &ChromeWindow::showDateInClock);
    m_clockTimer = new AlignedTimer(m_program.services.clock, this, m_row.clockInterval);
    m_clockTimer->setObjectName(m_row.clockTimer);
    connect(m_clockTimer, &AlignedTimer::tick, this, &ChromeWindow::updateClock);
}

void ChromeWindow::makeAlarmDisplay() {
    const ChromeLayout& layout = chromeLayout(m_row.kind);
    lblAlarm = new AlarmLabel(u"lblAlarm"_s, this);
    lblAlarm->setLead(layout.alarmLead);
    lblAlarm->setGeometry(layout.alarm);
    lblAlarm->setAlignment(layout.alarmAlignment);
    lblAlarm->setFont(skin::font(layout.alarmPoints));
    skin::setInk(*lblAlarm, skin::colour::GlassText);
    connect(lblAlarm, &Label::Change, this, &ChromeWindow::alarmCaptionChanged);

    imgSet = pictureButton(*this, u"imgSet"_s, layout.set, m_row.setToolTip, layout.setPicture);
    connect(imgSet, &Image::Click, this, [this] {
        if (m_program.windows.knows<AlarmSetDialog>())
            m_program.windows.get<AlarmSetDialog>().form().Show();
    });

    imgStop = pictureButton(*this, u"imgStop"_s, layout.stop, u" STOP "_s, layout.stopPicture);
    imgStop->hide();
    connect(imgStop, &Image::Click, this, &ChromeWindow::stopClick);
}

void ChromeWindow::makePanelLabels() {
    if (m_row.title.isEmpty())
        return;
    lblRem = new Label(u"lblRem"_s, m_row.title, this);
    const ChromeLayout& layout = chromeLayout(m_row.kind);
    lblRem->setGeometry(layout.title);
    lblRem->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont titleFont = skin::font(skin::points::Title, true);
    titleFont.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    lblRem->setFont(titleFont);
    lblRem->setAttribute(Qt::WA_TransparentForMouseEvents);
    skin::setInk(*lblRem, skin::colour::TitleInk);

    for (std::size_t i = 0; i < m_row.labels.size(); ++i) {
        const PanelLabel& entry = m_row.labels.at(i);
        auto* label = new Label(entry.name, entry.caption, this);
        label->setGeometry(layout.labels.at(i));
        label->setAlignment(Qt::AlignCenter);
        label->setFont(skin::font(skin::points::PanelLabel));
        label->setTabStop(true);
        skin::setInk(*label, skin::colour::LabelInk);
        connect(
            label, &Label::MouseEnter, label,
            [label] { skin::setInk(*label, skin::colour::TealInk); });
        connect(
            label, &Label::MouseExit, label,
            [label] { skin::setInk(*label, skin::colour::LabelInk); });
        const auto lead = [this, target = entry.target] { openPanel(target); };
        if (m_row.labelEvent == LabelEvent::MouseDown)
            connect(label, &Label::MouseDown, this, lead);
        else
            connect(label, &Label::Click, this, lead);
        panelLabels.at(i) = label;
    }
}

void ChromeWindow::tabToChromeAfter(QWidget& last) {
    QWidget* before = &last;
    // What stops the alarm comes ahead of what sets it: where the one that was pressed goes, the
    // focus passes to the other.
    for (QWidget* next :
         std::initializer_list<QWidget*>{panelLabels[0], panelLabels[1], panelLabels[2], imgStop,
                                         imgSet, imgMini, imgHelp, imgExit}) {
        if (next == nullptr)
            continue;
        setTabOrder(before, next);
        before = next;
    }
}

} // namespace orvalis
