// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/sys_tray.h"

#include "controls/mouse_numbers.h"
#include "core/program.h"
#include "runtime/aligned_timer.h"

#include <QLabel>
#include <QMenu>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

const QString SeparatorCaption = u"-"_s;

void setCaption(QAction& entry, const QString& caption) {
    const bool separates = caption == SeparatorCaption;
    entry.setSeparator(separates);
    // A separator that has a text would be drawn as a heading.
    entry.setText(separates ? QString() : caption);
}

QString captionOf(const QAction& entry) {
    return entry.isSeparator() ? SeparatorCaption : entry.text();
}

} // namespace

frmSysTray::frmSysTray(Program& program, TrayIcon& tray, const QIcon& icon)
    : Form(u"frmSysTray"_s)
    , m_program(program)
    , m_tray(tray)
    // Without a parent: a menu may not hang on a window that never shows.
    , m_mnuPopup(std::make_unique<QMenu>())
    , m_lblVreme(new QLabel(this))
    , m_Timer1(new AlignedTimer(program.services.clock, this)) {
    setWindowTitle(u"Sys Tray Interface"_s);
    setWindowIcon(icon);
    m_mnuPopup->setObjectName(u"mnuPopup"_s);
    m_lblVreme->setObjectName(u"lblVreme"_s);
    m_lblVreme->hide();
    m_Timer1->setObjectName(u"Timer1"_s);
    connect(m_Timer1, &AlignedTimer::tick, this, &frmSysTray::Timer1Tick);
    connect(&m_tray, &TrayIcon::mouse, this, &frmSysTray::routeMouse);
    loadMenuItem(0)->setVisible(false);
}

frmSysTray::~frmSysTray() = default;

void frmSysTray::onLoad() {
    m_record.hWnd = winId();
    m_record.uID = windowIcon().cacheKey();
    m_record.hIcon = windowIcon();
    m_record.szTip.set(u"Orvalis"_s);
    m_tray.setMenu(m_mnuPopup.get());
    m_tray.add(m_record);
    m_program.state.trayActive = true;
    m_Timer1->start();
}

void frmSysTray::onQueryUnload() {
    m_tray.remove(m_record);
    m_program.state.trayActive = false;
}

void frmSysTray::onUnload() {
    m_Timer1->stop();
    m_tray.disconnect(this);
    m_program.state.trayActive = false;
}

QString frmSysTray::ToolTip() const {
    return m_record.szTip.text();
}

void frmSysTray::SetToolTip(const QString& text) {
    if (m_record.szTip.holds(text))
        return;
    m_record.szTip.set(text);
    m_record.uFlags = TrayRecord::TipChanged;
    m_tray.modify(m_record);
}

qint64 frmSysTray::IconHandle() const {
    return m_record.hIcon.cacheKey();
}

void frmSysTray::SetIconHandle(const QIcon& icon) {
    if (icon.cacheKey() == IconHandle())
        return;
    m_record.hIcon = icon;
    m_record.uFlags = TrayRecord::IconChanged;
    m_tray.modify(m_record);
}

QAction* frmSysTray::loadMenuItem(int index) {
    QAction* entry = m_mnuPopup->addAction(QString());
    entry->setObjectName(u"mnuSysTray(%1)"_s.arg(index));
    // Later, when the menu is closed and its host has its answer: the handler may unload this form
    // or end the program.
    connect(
        entry, &QAction::triggered, this,
        [this, entry] {
            emit MenuClick(static_cast<int>(m_mnuSysTray.indexOf(entry)), entry->data().toString());
        },
        Qt::QueuedConnection);
    m_mnuSysTray.append(entry);
    return entry;
}

int frmSysTray::AddMenuItem(const QString& caption, const QString& key, bool isDefault) {
    int index = 0;
    if (m_menuCreated) {
        index = static_cast<int>(m_mnuSysTray.size());
        loadMenuItem(index);
    } else {
        m_menuCreated = true;
    }
    QAction* entry = m_mnuSysTray.at(index);
    entry->setVisible(true);
    entry->setData(key);
    setCaption(*entry, caption);
    if (isDefault)
        m_defaultIndex = index;
    return index;
}

bool frmSysTray::ValidMenuIndex(int index) const {
    return index >= 0 && index < m_mnuSysTray.size();
}

void frmSysTray::EnableMenuItem(int index, bool enabled) {
    if (ValidMenuIndex(index))
        m_mnuSysTray.at(index)->setEnabled(enabled);
}

void frmSysTray::RemoveMenuItem(int index) {
    if (!ValidMenuIndex(index))
        return;
    if (index == 0) {
        setCaption(*m_mnuSysTray.constFirst(), {});
        return;
    }
    for (int next = index + 1; next < m_mnuSysTray.size(); ++next) {
        QAction* before = m_mnuSysTray.at(next - 1);
        setCaption(*before, captionOf(*m_mnuSysTray.at(next)));
        before->setData(m_mnuSysTray.at(next)->data());
    }
    delete m_mnuSysTray.takeLast();
}

void frmSysTray::SetDefaultMenuIndex(int index) {
    m_defaultIndex = ValidMenuIndex(index) ? index : 0;
}

void frmSysTray::ShowMenu() {
    // The menu goes away at a click elsewhere only if the program is in the foreground.
    activateWindow();
    m_mnuPopup->setDefaultAction(mnuSysTray(m_defaultIndex));
    m_tray.popUp();
}

QAction* frmSysTray::mnuSysTray(int index) const {
    return ValidMenuIndex(index) ? m_mnuSysTray.at(index) : nullptr;
}

void frmSysTray::routeMouse(int code) {
    switch (code) {
    case TrayMouse::Move:
        emit SysTrayMouseMove();
        break;
    // The left button tells of its release alone, as a press.
    case TrayMouse::LeftUp:
        emit SysTrayMouseDown(LeftButton);
        break;
    case TrayMouse::LeftDoubleClick:
        emit SysTrayDoubleClick(LeftButton);
        break;
    case TrayMouse::RightDown:
        emit SysTrayMouseDown(RightButton);
        break;
    case TrayMouse::RightUp:
        emit SysTrayMouseUp(RightButton);
        break;
    case TrayMouse::RightDoubleClick:
        emit SysTrayDoubleClick(RightButton);
        break;
    default:
        break;
    }
}

void frmSysTray::Timer1Tick() {
    m_program.tick->run(*this);
}

void frmSysTray::showClock(const QString& text) {
    m_lblVreme->setText(text);
}

void frmSysTray::disarm() {
    m_program.state.alarmArmed = false;
}

} // namespace orvalis
