// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/tray_window.h"

#include "platform/tray_mouse.h"

#include <QCursor>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QScreen>

namespace orvalis {

namespace {

using namespace Qt::StringLiterals;

constexpr int IconMargin = 6;
constexpr int DistanceFromCorner = 8;
constexpr qreal CornerRadius = 9;

} // namespace

TrayWindow::TrayWindow()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint) {
    setObjectName(u"trayWindow"_s);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_TranslucentBackground);
    // The program lives on behind this window, and must not end because it was closed.
    setAttribute(Qt::WA_QuitOnClose, false);
    setFixedSize(Side, Side);
}

void TrayWindow::setIcon(const QIcon& icon) {
    m_icon = icon;
    setWindowIcon(icon);
    update();
}

void TrayWindow::moveToCorner() {
    const QRect free = screen()->availableGeometry();
    move(free.right() + 1 - width() - DistanceFromCorner,
         free.bottom() + 1 - height() - DistanceFromCorner);
}

void TrayWindow::showEvent(QShowEvent* event) {
    moveToCorner();
    connect(screen(), &QScreen::availableGeometryChanged, this, &TrayWindow::moveToCorner,
            Qt::UniqueConnection);
    QWidget::showEvent(event);
}

void TrayWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().window());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius,
                            CornerRadius);
    m_icon.paint(&painter, rect().marginsRemoved({IconMargin, IconMargin, IconMargin, IconMargin}));
}

StandInTrayIcon::StandInTrayIcon() {
    auto* codes = new TrayMouseCodes(this);
    codes->watch(&m_window);
    connect(codes, &TrayMouseCodes::mouse, this, &TrayIcon::mouse);
}

void StandInTrayIcon::setMenu(QMenu* menu) {
    m_menu = menu;
}

void StandInTrayIcon::add(const TrayRecord& record) {
    m_window.setIcon(record.hIcon);
    m_window.setToolTip(record.szTip.text());
    m_window.setWindowTitle(record.szTip.text());
    m_window.show();
}

void StandInTrayIcon::modify(const TrayRecord& record) {
    if ((record.uFlags & TrayRecord::IconChanged) != 0)
        m_window.setIcon(record.hIcon);
    if ((record.uFlags & TrayRecord::TipChanged) != 0) {
        m_window.setToolTip(record.szTip.text());
        m_window.setWindowTitle(record.szTip.text());
    }
}

void StandInTrayIcon::remove(const TrayRecord& /*record*/) {
    m_window.hide();
}

void StandInTrayIcon::popUp() {
    if (m_menu)
        m_menu->popup(QCursor::pos());
}

} // namespace orvalis
