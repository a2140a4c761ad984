// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/whole_file.h"

#include "runtime/failure.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <filesystem>
#include <iterator>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

constexpr int MostLinks = 128;
constexpr int NamesToTry = 100;
constexpr qint64 CopiedAtOnce = 65536;

// A temporary's name tells nothing of the file to come, so that it is never too long where that one
// fits, and nobody else has names like it.
const QString LeftoverStart = u".orvalis-"_s;
const QString LeftoverEnd = u".tmp"_s;
constexpr int MarkLength = 8;

[[noreturn]] void refuse(ErrorNumber number) {
    throw RuntimeError(number);
}

std::filesystem::path nativePath(const QString& path) {
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

bool isOwn(const QFileInfo& file) {
#ifdef Q_OS_WIN
    return file.isWritable();
#else
    return file.ownerId() == geteuid();
#endif
}

/// Whether what was written lies on the disk. A full or failing one often refuses only now.
bool reachesDisk(const QFile& file) {
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    int result = fsync(file.handle());
    while (result != 0 && errno == EINTR)
        result = fsync(file.handle());
    // Some file systems have no such thing as a disk.
    return result == 0 || errno == EINVAL || errno == ENOSYS;
#endif
}

/// Where a path leads through symbolic links.
QString throughLinks(const QString& path) {
    QString target = path;
    for (int links = 0; links < MostLinks && QFileInfo(target).isSymLink(); ++links)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

QString temporaryName() {
    constexpr QStringView Signs = u"abcdefghijklmnopqrstuvwxyz0123456789";
    QString mark;
    for (int i = 0; i < MarkLength; ++i)
        mark += Signs[QRandomGenerator::global()->bounded(static_cast<int>(Signs.size()))];
    return LeftoverStart + mark + LeftoverEnd;
}

QStringList leftoversIn(const QString& folder) {
    const QFileInfoList files =
        QDir(folder).entryInfoList({LeftoverStart + QString(MarkLength, u'?') + LeftoverEnd},
                                   QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    QStringList own;
    for (const QFileInfo& file : files)
        if (isOwn(file))
            own << file.filePath();
    return own;
}

/// The folder of a file that may be written.
QString checkedFolder(const QString& path, WholeFile::OldFile oldFile) {
    const QFileInfo target(path);
    if (target.fileName().isEmpty() || (target.exists() && !target.isFile()))
        refuse(ErrorNumber::PathFileAccessError);
    if (!QFileInfo(target.path()).isDir())
        refuse(ErrorNumber::PathNotFound);
    if (oldFile == WholeFile::OldFile::Replaced && target.exists() && !target.isWritable())
        refuse(ErrorNumber::PermissionDenied);
    return target.path();
}

} // namespace

TemporaryFile::TemporaryFile(const QString& folder) {
    for (int i = 0; i < NamesToTry; ++i) {
        m_file.setFileName(QDir(folder).filePath(temporaryName()));
        if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            return;
        if (!QFileInfo::exists(m_file.fileName()))
            break;
    }
    m_file.setFileName({});
    refuse(QFileInfo(folder).isWritable() ? ErrorNumber::PathFileAccessError
                                          : ErrorNumber::PermissionDenied);
}

TemporaryFile::~TemporaryFile() {
    m_file.close();
    if (!m_file.fileName().isEmpty())
        QFile::remove(m_file.fileName());
}

bool TemporaryFile::write(QByteArrayView bytes) {
    return m_file.write(bytes.data(), bytes.size()) == bytes.size();
}

bool TemporaryFile::complete() {
    const bool whole = reachesDisk(m_file);
    m_file.close();
    return whole;
}

bool TemporaryFile::renameOver(const QString& path) {
    std::error_code error;
    std::filesystem::rename(nativePath(m_file.fileName()), nativePath(path), error);
    if (error)
        return false;
    m_file.setFileName({});
    return true;
}

bool TemporaryFile::takeFree(const QString& path) {
    if (linkFile(m_file.fileName(), path))
        return true;
    const QFileInfo place(path);
    return !place.exists() && !place.isSymLink() && renameOver(path);
}

WholeFile::WholeFile(const QString& path, QByteArrayView bytes, OldFile oldFile)
    : m_target(throughLinks(path))
    , m_temporary(checkedFolder(m_target, oldFile)) {
    const QFileInfo target(m_target);
    if (target.exists() && (oldFile == OldFile::Replaced || target.isReadable()))
        m_temporary.setPermissions(target.permissions());
    if (!m_temporary.write(bytes) || !m_temporary.complete())
        refuse(ErrorNumber::PathFileAccessError);
}

bool copyWhole(const QString& path, const QString& copy) {
    return endSilently([&] {
        QFile source(path);
        if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            refuse(ErrorNumber::PermissionDenied);
        TemporaryFile temporary(QFileInfo(copy).path());
        QByteArray bytes(CopiedAtOnce, Qt::Uninitialized);
        qint64 length = 0;
        while ((length = source.read(bytes.data(), bytes.size())) > 0)
            if (!temporary.write(QByteArrayView(bytes).first(length)))
                refuse(ErrorNumber::PathFileAccessError);
        if (length < 0 || !temporary.complete() || !temporary.takeFree(copy))
            refuse(ErrorNumber::PathFileAccessError);
    });
}

bool linkFile(const QString& path, const QString& second) {
    std::error_code error;
    std::filesystem::create_hard_link(nativePath(path), nativePath(second), error);
    return !error;
}

bool hasLeftovers(const QString& folder) {
    return !leftoversIn(folder).isEmpty();
}

void removeLeftovers(const QString& folder) {
    for (const QString& path : leftoversIn(folder))
        QFile::remove(path);
}

} // namespace orvalis
