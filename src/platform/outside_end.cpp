// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/outside_end.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QThread>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace orvalis {

namespace {

constexpr std::array EndSignals{SIGTERM, SIGHUP, SIGINT};

// A signal's handler can do next to nothing: it writes a byte into a pipe that the event loop
// reads.
std::array<int, 2> signalPipe{-1, -1};

extern "C" void passSignalOn(int) {
    const int before = errno;
    const char byte = 0;
    // A full pipe has told it already.
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
    errno = before;
}

// Qt ends the process inside the toolkit once the display is gone. All that it does before is to
// warn, in the thread of the windows and with everything still in place.
std::function<void()> keepBeforeExit;
std::function<bool(QStringView)> isDisplayLost;
QtMessageHandler ordinaryHandler = nullptr;

void hearWarning(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    ordinaryHandler(type, context, text);
    if (keepBeforeExit && qApp != nullptr && QThread::currentThread() == qApp->thread() &&
        isDisplayLost(text))
        std::exchange(keepBeforeExit, {})();
}

} // namespace

OutsideEnd::OutsideEnd(std::function<void()> keep, std::function<void()> end,
                       std::function<bool(QStringView)> displayIsLost)
    : m_keep(std::move(keep))
    , m_end(std::move(end)) {
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { m_keep(); },
        Qt::DirectConnection);
    watchSignals();
    watchDisplay(std::move(displayIsLost));
}

OutsideEnd::~OutsideEnd() {
    for (const int number : EndSignals)
        std::signal(number, SIG_DFL);
    for (int& end : signalPipe)
        if (end >= 0)
            close(std::exchange(end, -1));
    keepBeforeExit = {};
    isDisplayLost = {};
    qInstallMessageHandler(ordinaryHandler);
}

void OutsideEnd::watchSignals() {
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_signalled = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(m_signalled, &QSocketNotifier::activated, this, [this] {
        m_signalled->setEnabled(false);
        m_end();
    });
    for (const int number : EndSignals)
        // Who started the program may have told it to take no notice.
        if (std::signal(number, passSignalOn) == SIG_IGN)
            std::signal(number, SIG_IGN);
}

void OutsideEnd::watchDisplay(std::function<bool(QStringView)> displayIsLost) {
    // Rules of the user's may silence warnings; this one has a hearer of its own.
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, true);
    isDisplayLost = std::move(displayIsLost);
    keepBeforeExit = m_keep;
    ordinaryHandler = qInstallMessageHandler(hearWarning);
}

} // namespace orvalis
