// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/xdg/xdg_logon_entry.h"

#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "runtime/whole_file.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// A text as the value of a key of a desktop entry.
QString escapedValue(const QString& text) {
    QString escaped;
    for (const QChar c : text)
        if (c == u'\\')
            escaped += u"\\\\"_s;
        else if (c == u'\n')
            escaped += u"\\n"_s;
        else if (c == u'\r')
            escaped += u"\\r"_s;
        else if (c == u'\t')
            escaped += u"\\t"_s;
        else
            escaped += c;
    return escaped;
}

/// A program's path as the one argument of a command line: quoted, what is special inside quotes
/// behind a backslash, and "%" doubled, since field codes are looked for inside quotes too.
QString quotedArgument(const QString& path) {
    QString quoted = u"\""_s;
    for (const QChar c : path) {
        if (u"\"`$\\"_s.contains(c))
            quoted += u'\\';
        else if (c == u'%')
            quoted += u'%';
        quoted += c;
    }
    return quoted + u'"';
}

} // namespace

QByteArray autostartContent(const QString& name, const QString& programPath) {
    const QString content = u"[Desktop Entry]\n"
                            "Type=Application\n"
                            "Name="_s +
                            escapedValue(name) + u"\nTryExec="_s + escapedValue(programPath) +
                            u"\nExec="_s + escapedValue(quotedArgument(programPath)) +
                            u"\nTerminal=false\n"_s;
    return content.toUtf8();
}

XdgLogonEntry::XdgLogonEntry(const QString& autostartFolder)
    : m_folder(autostartFolder) {}

QString XdgLogonEntry::defaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/autostart"_s;
}

QString XdgLogonEntry::filePath(const QString& name) const {
    return joinPath(m_folder, name.toLower() + u".desktop"_s);
}

void XdgLogonEntry::set(const QString& name, const QString& programPath) {
    QDir().mkpath(m_folder);
    endSilently([&] { saveWhole(filePath(name), autostartContent(name, programPath)); });
}

void XdgLogonEntry::removeLeftovers() {
    orvalis::removeLeftovers(m_folder);
}

void XdgLogonEntry::remove(const QString& name) {
    QFile::remove(filePath(name));
}

} // namespace orvalis
