// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/xdg/xdg_shell.h"

#include "platform/child_environment.h"
#include "platform/opening_target.h"
#include "runtime/failure.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

bool startDetached(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setProcessEnvironment(childEnvironment());
    process.setWorkingDirectory(QDir::homePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace

bool XdgShell::open(const QString& documentOrAddress) {
    const QString target = openingTarget(documentOrAddress);
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    return !target.isEmpty() && !opener.isEmpty() && startDetached(opener, {target});
}

void XdgShell::start(const QString& program) {
    if (program.isEmpty())
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    const QString executable = QStandardPaths::findExecutable(program);
    if (executable.isEmpty() && !QFileInfo(program).isFile())
        throw RuntimeError(ErrorNumber::FileNotFound);
    if (executable.isEmpty() || !startDetached(executable, {}))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
}

} // namespace orvalis
