// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "driver/stage.h"

#include <QFile>

#include <csignal>

using namespace Qt::StringLiterals;

namespace orvalis::driver {

namespace {
constexpr int ComesUpWithinMilliseconds = 20000;
} // namespace

Stage::Stage(const Plan& plan)
    : m_environment(QProcessEnvironment::systemEnvironment()) {
    m_environment.remove(u"WAYLAND_DISPLAY"_s);
    m_environment.remove(u"QT_SCALE_FACTOR"_s);
    m_environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"XDG_CURRENT_DESKTOP"_s, u"stage"_s);
    if (!startDisplay(plan.screen))
        return;
    if (plan.sessionBus)
        startSessionBus();
    if (plan.windowManager)
        startWindowManager();
    if (plan.tray)
        startTray();
}

Stage::~Stage() {
    if (m_bus)
        ::kill(static_cast<pid_t>(m_bus->processId()), SIGCONT);
    for (auto process = m_processes.rbegin(); process != m_processes.rend(); ++process) {
        (*process)->terminate();
        if (!(*process)->waitForFinished(3000)) {
            (*process)->kill();
            (*process)->waitForFinished(3000);
        }
    }
}

QProcess* Stage::start(const QString& program, const QStringList& arguments) {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, arguments);
    if (!process->waitForStarted(5000)) {
        m_trouble = u"%1 does not start: %2"_s.arg(program, process->errorString());
        return nullptr;
    }
    m_processes.push_back(std::move(process));
    return m_processes.back().get();
}

bool Stage::startDisplay(QSize screen) {
    // The server picks a free number itself and tells it once it takes connections.
    QProcess* server =
        start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s, u"-screen"_s, u"0"_s,
                          u"%1x%2x24"_s.arg(screen.width()).arg(screen.height())});
    if (!server)
        return false;
    m_server = server;
    if (!server->waitForReadyRead(10000)) {
        m_trouble = u"Xvfb tells no display number"_s;
        return false;
    }
    const QString number = QString::fromLatin1(server->readLine().trimmed());
    m_environment.insert(u"DISPLAY"_s, u":"_s + number);
    if (!m_display.open(u":"_s + number)) {
        m_trouble = u"Xvfb takes no connection"_s;
        return false;
    }
    return true;
}

void Stage::startWindowManager() {
    // A window that comes before the window manager is taken over later: it vanishes, moves and
    // comes again under the pointer.
    if (!start(u"openbox"_s, {u"--sm-disable"_s}))
        return;
    if (!waitUntil([this] { return m_display.hasWindowManager(); }, ComesUpWithinMilliseconds)) {
        m_trouble = u"openbox does not come up"_s;
        return;
    }
    // What reaches it while it comes up it may leave lying until the next event: windows of our own
    // go first, until one is shown.
    constexpr int Tries = 40;
    constexpr int TryMilliseconds = 250;
    for (int i = 0; i < Tries; ++i)
        if (m_display.showsWindows(TryMilliseconds))
            return;
    m_trouble = u"openbox shows no window"_s;
}

void Stage::startSessionBus() {
    QProcess* bus =
        start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    if (!bus)
        return;
    m_bus = bus;
    if (!bus->waitForReadyRead(10000)) {
        m_trouble = u"dbus-daemon tells no address"_s;
        return;
    }
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s,
                         QString::fromLatin1(bus->readLine().trimmed()));
}

void Stage::killDisplay() {
    m_server->kill();
    m_server->waitForFinished(3000);
}

void Stage::freezeSessionBus() {
    ::kill(static_cast<pid_t>(m_bus->processId()), SIGSTOP);
}

void Stage::startTray() {
    m_tray = start(u"trayer"_s, {u"--edge"_s, u"top"_s, u"--align"_s, u"right"_s, u"--widthtype"_s,
                                 u"request"_s, u"--height"_s, u"28"_s});
    if (m_tray && !waitUntil([this] { return m_display.hasTray(); }, ComesUpWithinMilliseconds))
        m_trouble = u"trayer does not come up"_s;
}

void Stage::stopTray() {
    if (!m_tray)
        return;
    m_tray->terminate();
    m_tray->waitForFinished(3000);
    m_tray = nullptr;
}

} // namespace orvalis::driver
