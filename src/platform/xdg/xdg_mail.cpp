// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/xdg/xdg_mail.h"

#include "platform/child_environment.h"
#include "runtime/failure.h"
#include "runtime/program_end.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <set>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace orvalis {

using namespace Qt::StringLiterals;

namespace {

/// xdg-email's own status where it found no mail program to hand the message to.
constexpr int NoMailProgram = 3;

RuntimeError nothingSendsMail() {
    return {ErrorNumber::FileNotFound, u"There is no mail program to send the document with."_s};
}

RuntimeError refused() {
    return {ErrorNumber::InvalidProcedureCall, u"The mail program did not take the document."_s};
}

/// The recipient goes as an address of the scheme: of plain words xdg-email takes those alone that
/// hold an "@".
QStringList argumentsFor(const MailMessage& message) {
    QStringList arguments{u"--utf8"_s};
    if (!message.text.isEmpty())
        arguments << u"--body"_s << message.text;
    return arguments << u"--attach"_s << QFileInfo(message.attachment).absoluteFilePath()
                     << u"mailto:"_s +
                            QString::fromLatin1(QUrl::toPercentEncoding(message.recipient, "@"));
}

/// A mail program that runs on is nobody's child any more: it outlives us, and a key that ends the
/// program in its terminal does not reach it.
void standAlone(QProcess& process) {
#ifdef Q_OS_UNIX
    process.setChildProcessModifier([] { ::setsid(); });
#else
    Q_UNUSED(process)
#endif
}

void waitFor(QProcess& process, std::chrono::milliseconds patience) {
    QEventLoop wait;
    QObject::connect(&process, &QProcess::finished, &wait, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &wait, &QEventLoop::quit);
    QTimer::singleShot(patience, &wait, &QEventLoop::quit);
    if (process.state() != QProcess::NotRunning)
        wait.exec(QEventLoop::ExcludeUserInputEvents);
}

/// A QProcess ends its child when it goes; this one goes when the child does. One whose child
/// outlives the program is held until the very end, so nothing destroys these.
void letGoOn(std::unique_ptr<QProcess> process) {
    static auto* const runningOn = new std::set<QProcess*>;
    QProcess* running = process.release();
    runningOn->insert(running);
    QObject::connect(running, &QProcess::finished, running, &QObject::deleteLater);
    QObject::connect(running, &QObject::destroyed, [running] { runningOn->erase(running); });
}

} // namespace

void XdgMail::compose(const MailMessage& message) {
    const QString tool = QStandardPaths::findExecutable(u"xdg-email"_s);
    if (tool.isEmpty())
        throw nothingSendsMail();
    if (!QFileInfo(message.attachment).isFile())
        throw RuntimeError(ErrorNumber::FileNotFound,
                           u"The document to send is not there any more: "_s + message.attachment);
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(childEnvironment());
    process->setWorkingDirectory(QDir::homePath());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    standAlone(*process);
    process->start(tool, argumentsFor(message));
    waitFor(*process, m_patience);
    if (process->state() != QProcess::NotRunning) {
        letGoOn(std::move(process));
        throwIfEnded();
        return;
    }
    throwIfEnded();
    if (process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0 &&
        process->error() != QProcess::FailedToStart)
        return;
    throw process->exitCode() == NoMailProgram ? nothingSendsMail() : refused();
}

} // namespace orvalis
