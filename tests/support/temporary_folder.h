// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace orvalis::test {

/// A fresh folder for one test, with the few steps that tests of files need.
class TemporaryFolder {
public:
    QString path() const { return m_folder.path(); }
    QString file(const QString& name) const { return m_folder.filePath(name); }

    QString write(const QString& name, const QByteArray& bytes) const {
        QFile target(file(name));
        if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size())
            qFatal("the test's file could not be written");
        return target.fileName();
    }
    /// An empty file so far down in folders of names that no shell would bear that its path has the
    /// length given.
    QString writeFarDown(const QString& name, qsizetype length) const {
        const QString part = QStringLiteral("/a 'b' \"c\"; $(touch x) `touch x` -d");
        QString folder = path();
        while (folder.size() + 2 * part.size() + name.size() + 1 < length)
            folder += part;
        folder += u'/' + QString(length - folder.size() - name.size() - 2, u'n');
        if (!QDir().mkpath(folder))
            qFatal("the test's folders could not be made");
        const QString written = folder + u'/' + name;
        QFile target(written);
        if (!target.open(QIODevice::WriteOnly))
            qFatal("the test's file could not be written");
        return written;
    }
    QByteArray read(const QString& name) const {
        QFile source(file(name));
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }
    /// Everything in the folder, hidden files too.
    QStringList names() const {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                      QDir::NoDotAndDotDot);
    }
    /// Takes the right to make files in the folder, or gives it back.
    void setWritable(bool writable) const {
        QFile::setPermissions(path(), writable
                                          ? QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                          : QFile::ReadOwner | QFile::ExeOwner);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace orvalis::test
