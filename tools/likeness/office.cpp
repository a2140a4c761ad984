// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "office.h"

#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <csignal>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace orvalis::likeness {

namespace {

constexpr qsizetype FilesAtOnce = 48;
constexpr int SecondsOfBatch = 240;
constexpr int SecondsOfFile = 40;

bool isMade(const QString& file, const QString& filter, const QString& into) {
    const QString ending = filter.section(u':', 0, 0);
    return QFileInfo::exists(into + u'/' + QFileInfo(file).completeBaseName() + u'.' + ending);
}

} // namespace

Office::Office(const QString& folder)
    : m_settings(u"-env:UserInstallation="_s + QUrl::fromLocalFile(folder).toString()) {}

void Office::run(const QStringList& files, const QString& filter, const QString& into,
                 int seconds) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    // The script that is started waits for the program itself: both end together.
    process.setChildProcessModifier([] { ::setsid(); });
    process.start(u"soffice"_s, QStringList{m_settings, u"--headless"_s, u"--convert-to"_s, filter,
                                            u"--outdir"_s, into} +
                                    files);
    if (process.waitForFinished(1000 * seconds))
        return;
    if (process.processId() > 0)
        ::kill(-pid_t(process.processId()), SIGKILL);
    process.waitForFinished();
}

void Office::convert(const QStringList& files, const QString& filter, const QString& into) {
    QStringList wanted = files;
    wanted.removeIf([&](const QString& file) { return isMade(file, filter, into); });
    for (qsizetype at = 0; at < wanted.size(); at += FilesAtOnce)
        run(wanted.mid(at, FilesAtOnce), filter, into, SecondsOfBatch);
    for (const QString& file : std::as_const(wanted))
        if (!isMade(file, filter, into))
            run({file}, filter, into, SecondsOfFile);
}

} // namespace orvalis::likeness
