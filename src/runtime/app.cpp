// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/app.h"

#include "runtime/files.h"
#include "runtime/whole_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

constexpr std::array DataFiles{u"Vazno.rtf",    u"weekly.rtf",      u"tmp1.brf", u"tmp2.brf",
                               u"address1.dat", u"address1tmp.dat", u"Msg.txt"};

/// Copies the data files that lie in a folder to another one that has none of that name.
void takeOver(const QDir& from, const QDir& to) {
    for (const char16_t* dataFile : DataFiles) {
        const QString name = QString::fromUtf16(dataFile);
        if (QFileInfo(from.filePath(name)).isFile() && !to.exists(name))
            copyWhole(from.filePath(name), to.filePath(name)); // the old one stays where it is
    }
}

QString dataFolder(const QString& executableFolder, const QString& userDataFolder) {
    // Files that may be written in a folder that may not could be written in place alone, and would
    // be torn by a full disk or a crash.
    if (QFileInfo(executableFolder).isWritable())
        return executableFolder;
    QDir().mkpath(userDataFolder);
    takeOver(QDir(executableFolder), QDir(userDataFolder));
    return userDataFolder;
}

} // namespace

App::App(const QString& executablePath, const QString& userDataFolder,
         const QStringList& shareFolders)
    : m_executablePath(QDir::toNativeSeparators(executablePath)) {
    const QString executableFolder = QFileInfo(executablePath).absolutePath();
    m_path = QDir::toNativeSeparators(dataFolder(executableFolder, userDataFolder));
    m_companionFolders = QStringList(executableFolder) + shareFolders;
}

App App::ofThisProcess() {
    const QString executablePath = QCoreApplication::applicationFilePath();
    const QString ownShare =
        QDir::cleanPath(QFileInfo(executablePath).absolutePath() + u"/../share/orvalis"_s);
    const QString userDataFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/orvalis"_s;
    QStringList shareFolders{ownShare};
    for (const QString& folder :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        shareFolders << folder + u"/orvalis"_s;
    return App(executablePath, userDataFolder, shareFolders);
}

int App::Major() const {
    return ORVALIS_VERSION_MAJOR;
}

int App::Minor() const {
    return ORVALIS_VERSION_MINOR;
}

int App::Revision() const {
    return ORVALIS_VERSION_REVISION;
}

QString App::file(const QString& name) const {
    return joinPath(m_path, name);
}

QString App::companion(const QString& name) const {
    for (const QString& folder : m_companionFolders) {
        const QString path = QDir::toNativeSeparators(joinPath(folder, name));
        if (QFileInfo(path).isFile())
            return path;
    }
    return file(name);
}

} // namespace orvalis
