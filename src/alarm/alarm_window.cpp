// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "alarm/alarm_window.h"

#include "controls/image.h"
#include "core/skin_picture.h"

#include <QMenuBar>

namespace orvalis {

using namespace Qt::StringLiterals;

frmAlarm::frmAlarm()
    : Form(u"frmAlarm"_s)
    , m_menuBar(new QMenuBar(this))
    , m_Image1(new Image(u"Image1"_s, this)) {
    setWindowTitle(u"Orvalis Player"_s);
    m_menuBar->setObjectName(u"mnuBar"_s);
    m_menuBar->setNativeMenuBar(false);
    makeMenus();
    m_Image1->setPicture(skinPicture(u"alarm_window_background"_s));
    const int barHeight = m_menuBar->sizeHint().height();
    m_menuBar->setGeometry(0, 0, m_Image1->width(), barHeight);
    m_Image1->move(0, barHeight);
    setFixedSize(m_Image1->width(), barHeight + m_Image1->height());
}

void frmAlarm::makeMenus() {
    const auto menu = [this](const QString& name, const QString& caption,
                             const QStringList& entries) {
        QMenu* made = m_menuBar->addMenu(caption);
        made->setObjectName(name);
        for (const QString& entry : entries)
            made->addAction(entry);
    };
    menu(u"mnuFile"_s, u"File"_s,
         {u"&Repeat ..."_s, u"&Playback"_s, u"File &Intro"_s, u"Sort &List ..."_s});
    menu(u"mnuPlaylist"_s, u"Playlist"_s, {u"&Load"_s, u"&Save"_s, u"&New"_s});
    menu(u"mnuSkin"_s, u"Skin"_s, {u"&Default"_s});
}

} // namespace orvalis
