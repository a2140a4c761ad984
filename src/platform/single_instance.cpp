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

} // namespace

SingleInstance::SingleInstance(const QString& dataFolder, const QString& lockFolder)
    : m_lock(QDir(lockFolder).filePath(lockName(dataFolder))) {
    // A lock is as old as its owner's run may be long; only the owner's death makes it stale.
    m_lock.setStaleLockTime(0);
    m_held = !m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError;
}

QString SingleInstance::defaultFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QDir::tempPath() : folder;
}

} // namespace orvalis
