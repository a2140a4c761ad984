// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/shell.h"

#include "platform/child_environment.h"
#include "runtime/failure.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// Whether a text begins with a scheme. One letter is a drive, and a name with a point ahead of a
/// number is a host with its port.
bool hasScheme(const QString& text) {
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    static const QRegularExpression port(u"^[^:/]*\\.[^:/]*:[0-9]"_s);
    return scheme.match(text).hasMatch() && !port.match(text).hasMatch();
}

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

QString openingTarget(const QString& documentOrAddress) {
    if (documentOrAddress.isEmpty())
        return {};
    const QFileInfo file(documentOrAddress);
    if (file.exists())
        return file.absoluteFilePath();
    if (file.isAbsolute())
        return {};
    const QString address = documentOrAddress.trimmed();
    return hasScheme(address) ? address : u"http://"_s + address;
}

bool DesktopShell::open(const QString& documentOrAddress) {
    const QString target = openingTarget(documentOrAddress);
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    return !target.isEmpty() && !opener.isEmpty() && startDetached(opener, {target});
}

void DesktopShell::start(const QString& program) {
    if (program.isEmpty())
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    const QString executable = QStandardPaths::findExecutable(program);
    if (executable.isEmpty() || !startDetached(executable, {}))
        throw RuntimeError(ErrorNumber::FileNotFound);
}

} // namespace orvalis
