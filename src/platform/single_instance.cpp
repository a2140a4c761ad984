// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// The folder's own name for the eye, and a digest of its whole path, which tells it from others.
QString lockName(const QString& dataFolder) {
    const QFileInfo folder(dataFolder);
    const QString path =
        folder.exists() ? folder.canonicalFilePath() : QDir::cleanPath(folder.absoluteFilePath());
    const QByteArray digest =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().first(16);
    return u"orvalis-%1-%2.lock"_s.arg(QFileInfo(path).fileName(), QString::fromLatin1(digest));
}

enum class Outcome { Taken, Held, Impossible };

Outcome take(QLockFile& lock) {
    // A lock is as old as its owner's run may be long; only the owner's death makes it stale.
    lock.setStaleLockTime(0);
    if (lock.tryLock())
        return Outcome::Taken;
    return lock.error() == QLockFile::LockFailedError ? Outcome::Held : Outcome::Impossible;
}

} // namespace

SingleInstance::SingleInstance(const QString& dataFolder, const QString& lockFolder)
    : m_lock(QDir(lockFolder).filePath(lockName(dataFolder)))
    , m_lockBesideData(QDir(dataFolder).filePath(u"orvalis.lock"_s)) {
    const Outcome atRunTime = take(m_lock);
    m_held = atRunTime == Outcome::Held;
    if (m_held)
        return;
    const bool taken = atRunTime == Outcome::Taken;
    if (taken)
        m_place = &m_lock;
    // A copy whose run-time folder takes no file holds its place beside the data.
    if (taken && !QFileInfo::exists(m_lockBesideData.fileName()))
        return;
    const Outcome besideData = take(m_lockBesideData);
    m_held = besideData == Outcome::Held;
    if (!taken && besideData == Outcome::Taken)
        m_place = &m_lockBesideData;
    if (taken)
        m_lockBesideData.unlock();
    if (taken && m_held) {
        m_lock.unlock();
        m_place = nullptr;
    }
}

QString SingleInstance::defaultFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QDir::tempPath() : folder;
}

} // namespace orvalis
